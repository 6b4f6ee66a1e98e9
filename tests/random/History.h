#pragma once

#include "Field.h"
#include "QuendNames.h"
#include "ReferenceModel.h"
#include "WorksheetState.h"

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <vector>

/// A field without the row that shows it: a sort is no step.
struct FieldPlace {
    FieldId id = FieldId::LoanName;
    std::optional<OfferIndex> offer;

    friend auto operator<=>(const FieldPlace&, const FieldPlace&) = default;
};

/// What the program held and showed after a step of the user, and what the reference model held.
struct Picture {
    model::WorksheetState state;
    std::map<FieldPlace, QString> texts; ///< of the fields that were not being edited
    ModelValues values;
};

/// The last pictures, to which undo and redo must lead.
class History {
public:
    void Add(Picture picture);
    void Clear() { m_pictures.clear(); }
    const Picture& Now() const { return m_pictures.at(m_now); }
    /// Null: none is known.
    const Picture* Earlier() const { return m_now > 0 ? &m_pictures.at(m_now - 1) : nullptr; }
    const Picture* Later() const {
        return m_now + 1 < m_pictures.size() ? &m_pictures.at(m_now + 1) : nullptr;
    }
    void GoBack() { --m_now; }
    void GoOn() { ++m_now; }

private:
    std::vector<Picture> m_pictures;
    std::size_t m_now = 0;
};
