#include "Trail.h"

#include "RandomUser.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace {

using User = RandomUser;

constexpr std::array KindTable{
    // Fields
    KindOfStep{"Enter", 60, &User::EnterField},
    KindOfStep{"Fill", 200, &User::EnterField}, // followed by typing and the Tab key
    KindOfStep{"Type", 60, &User::Type},
    KindOfStep{"Paste", 40, &User::Paste},
    KindOfStep{"Edit", 60, &User::EditText},
    KindOfStep{"Clipboard", 30, &User::UseClipboard},
    KindOfStep{"Tab", 80, &User::Tab},
    KindOfStep{"Return", 20, &User::Return},
    KindOfStep{"Arrow", 50, &User::Arrow},
    KindOfStep{"Choose", 40, &User::Choose},
    KindOfStep{"Day", 15, &User::TypeDay},
    KindOfStep{"Offer", 40, &User::FillOffer},
    KindOfStep{"Current", 8, &User::FillCurrent},
    KindOfStep{"Intend", 8, &User::Intend},
    KindOfStep{"Clear", 6, &User::ClearIntended}, // followed by a save and entering a value again
    KindOfStep{"Again", 6, &User::EnterAgain},
    // Rows
    KindOfStep{"Tick", 20, &User::Tick},
    KindOfStep{"Drop", 40, &User::Drop},
    KindOfStep{"Sort", 20, &User::Sort},
    KindOfStep{"Wheel", 20, &User::Wheel},
    KindOfStep{"Bar", 15, &User::ClickBar},
    KindOfStep{"Lender", 4, &User::OpenLender},
    KindOfStep{"Second", 20, &User::LetSecondPass},
    // The Edit menu
    KindOfStep{"Undo", 40, &User::Undo},
    KindOfStep{"Redo", 15, &User::Redo},
    KindOfStep{"Row", 15, &User::UseRow},
    KindOfStep{"Cells", 15, &User::PasteCells},
    KindOfStep{"Table", 3, &User::CopyTable},
    // Files
    KindOfStep{"Name", 15, &User::TypeName},
    KindOfStep{"Save", 10, &User::Save},
    KindOfStep{"Pick", 10, &User::PickName},
    KindOfStep{"Keep", 5, &User::LeaveOut}, // followed by a save and loading the worksheet again
    KindOfStep{"Elsewhere", 2, &User::ChooseType}, // loaded again in another language and country
    KindOfStep{"Reload", 2, &User::Reload},
    KindOfStep{"Unnamed", 4, &User::CloseUnnamed},
    KindOfStep{"New", 4, &User::New},
    KindOfStep{"Delete", 4, &User::Delete},
    KindOfStep{"BringBack", 2, &User::BringBack},
    KindOfStep{"Rename", 4, &User::Rename},
    KindOfStep{"Close", 2, &User::CloseAndStart},
    // The comparison
    KindOfStep{"Compare", 4, &User::OpenComparison}, // followed by steps in it and beside it
    KindOfStep{"Otherwise", 1, &User::CompareOtherwise},
    KindOfStep{"Costs", 1, &User::EnterCosts},
    KindOfStep{"SortCosts", 1, &User::SortCosts},
    KindOfStep{"Shut", 2, &User::CloseComparison},
    // Other features
    KindOfStep{"Language", 3, &User::SwitchLanguage},
    KindOfStep{"Options", 3, &User::OpenOptions},
    KindOfStep{"Print", 2, &User::Print},
    KindOfStep{"About", 1, &User::OpenAbout},
    KindOfStep{"Help", 1, &User::OpenHelp},
    KindOfStep{"WhatsThis", 2, &User::AskWhatsThis},
    KindOfStep{"Share", 2, &User::Share},
    KindOfStep{"Resize", 3, &User::Resize},
    KindOfStep{"Click", 20, &User::ClickAnywhere},
};

} // namespace

std::span<const KindOfStep> Kinds() { return KindTable; }

StepMaker::StepMaker(std::uint64_t seed) : m_random(seed) {
    for (const KindOfStep& kind : KindTable) {
        m_all += kind.weight;
    }
}

Step StepMaker::Of(const char* name) {
    const auto* const found = std::ranges::find_if(
        KindTable, [name](const KindOfStep& kind) { return std::strcmp(kind.name, name) == 0; });
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
    } else if (begun == "Compare") {
        m_planned = {Of("Shut"),  Of("Reload"), Of("Save"),      name(),      Of("Sort"),
                     Of("Offer"), Of("Costs"),  Of("SortCosts"), Of("Costs"), Of("Otherwise")};
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
        const auto* const kind = std::ranges::find_if(KindTable, [&](const KindOfStep& row) {
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
