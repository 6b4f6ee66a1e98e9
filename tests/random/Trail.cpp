#include "Trail.h"

#include "RandomUser.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace {

using U = RandomUser;

constexpr std::array KindTable{
    // Fields
    StepKind{"Enter", 60, &U::EnterField},
    StepKind{"Fill", 200, &U::EnterField}, // followed by typing and the Tab key
    StepKind{"Type", 60, &U::Type},
    StepKind{"Paste", 40, &U::Paste},
    StepKind{"Edit", 60, &U::EditText},
    StepKind{"Clipboard", 30, &U::UseClipboard},
    StepKind{"Tab", 80, &U::Tab},
    StepKind{"Return", 20, &U::Return},
    StepKind{"Arrow", 50, &U::Arrow},
    StepKind{"Choose", 40, &U::Choose},
    StepKind{"Day", 15, &U::TypeDay},
    StepKind{"Offer", 40, &U::FillOffer},
    StepKind{"Current", 8, &U::FillCurrent},
    StepKind{"Intend", 8, &U::Intend},
    StepKind{"Clear", 6, &U::ClearIntended}, // followed by a save and entering a value again
    StepKind{"Again", 6, &U::EnterAgain},
    // Rows
    StepKind{"Tick", 20, &U::Tick},
    StepKind{"Drop", 40, &U::Drop},
    StepKind{"Sort", 20, &U::Sort},
    StepKind{"Wheel", 20, &U::Wheel},
    StepKind{"Bar", 15, &U::ClickBar},
    StepKind{"Lender", 4, &U::OpenLender},
    StepKind{"Second", 20, &U::LetSecondPass},
    // Files
    StepKind{"Name", 15, &U::TypeName},
    StepKind{"Save", 10, &U::Save},
    StepKind{"Pick", 10, &U::PickName},
    StepKind{"Keep", 5, &U::LeaveOut},        // followed by a save and loading the worksheet again
    StepKind{"Elsewhere", 2, &U::ChooseType}, // loaded again in another language and country
    StepKind{"Reload", 2, &U::Reload},
    StepKind{"Unnamed", 4, &U::CloseUnnamed},
    StepKind{"New", 4, &U::New},
    StepKind{"Delete", 4, &U::Delete},
    StepKind{"Close", 2, &U::CloseAndStart},
    // Other features
    StepKind{"Language", 3, &U::SwitchLanguage},
    StepKind{"Options", 3, &U::OpenOptions},
    StepKind{"Print", 2, &U::Print},
    StepKind{"About", 1, &U::OpenAbout},
    StepKind{"Help", 1, &U::OpenHelp},
    StepKind{"WhatsThis", 2, &U::AskWhatsThis},
    StepKind{"Share", 2, &U::Share},
    StepKind{"Resize", 3, &U::Resize},
    StepKind{"Click", 20, &U::ClickAnywhere},
};

} // namespace

std::span<const StepKind> Kinds() { return KindTable; }

StepMaker::StepMaker(std::uint64_t seed) : m_random(seed) {
    for (const StepKind& kind : KindTable) {
        m_all += kind.weight;
    }
}

Step StepMaker::Of(const char* name) {
    const auto* const found = std::ranges::find_if(
        KindTable, [name](const StepKind& kind) { return std::strcmp(kind.name, name) == 0; });
    return {static_cast<std::size_t>(found - KindTable.begin()),
            static_cast<unsigned>(m_random() % 10'000), static_cast<unsigned>(m_random() % 10'000)};
}

Step StepMaker::Next() {
    if (!m_planned.empty()) {
        const Step step = m_planned.back();
        m_planned.pop_back();
        return step;
    }
    int left = static_cast<int>(m_random() % static_cast<unsigned>(m_all));
    const auto* kind = KindTable.begin();
    for (; left >= kind->weight; ++kind) {
        left -= kind->weight;
    }
    const Step step = Of(kind->name);
    Plan(kind->name, step);
    return step;
}

/// The steps that follow after this one.
void StepMaker::Plan(std::string_view begun, const Step& step) {
    constexpr unsigned leaving = 2;                                               // with Tab
    const auto name = [&] { return Step{Of("Name").kind, leaving, step.b % 3}; }; // can be saved
    if (begun == "Fill") {
        m_planned = {Of("Tab"), Of("Type")};
        m_planned.front().a = 0; // forward
    } else if (begun == "Clear") {
        Step again = Of("Again");
        again.a = step.a;                        // in the same row,
        again.b = step.b % 3 == 0 ? 4 : again.b; // over the box that was ticked
        m_planned = {Of("Second"), again, Of("Save"), name()};
    } else if (begun == "Keep") {
        m_planned = {Of("Reload"), Of("Save"), name()};
    } else if (begun == "Elsewhere") {
        m_planned = {Of("Reload"), Of("Close"), Of("Reload"), Of("Language"), Of("Save"), name()};
        m_planned.at(3).a = 2; // the other language
    } else if (begun == "Options" && step.b % 8 < 2) {
        m_planned = {Of("Close")};
    }
}

QString Written(const Trail& trail) {
    QStringList steps;
    for (const Step& step : trail) {
        steps.append(QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(KindTable.at(step.kind).name))
                         .arg(step.a)
                         .arg(step.b));
    }
    return steps.join(QStringLiteral("; "));
}

Trail ReadTrail(const QString& text) {
    Trail trail;
    for (const QString& written : text.split(u';', Qt::SkipEmptyParts)) {
        const QStringList words = written.simplified().split(u' ');
        const auto* const kind = std::ranges::find_if(KindTable, [&](const StepKind& row) {
            return words.front() == QLatin1String(row.name);
        });
        if (kind == KindTable.end() || words.size() != 3) {
            throw std::invalid_argument("no step: " + written.toStdString());
        }
        trail.push_back({static_cast<std::size_t>(kind - KindTable.begin()), words[1].toUInt(),
                         words[2].toUInt()});
    }
    return trail;
}
