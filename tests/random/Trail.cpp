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
    StepKind{"Enter", 60, &User::EnterField},
    StepKind{"Fill", 200, &User::EnterField}, // followed by typing and the Tab key
    StepKind{"Type", 60, &User::Type},
    StepKind{"Paste", 40, &User::Paste},
    StepKind{"Edit", 60, &User::EditText},
    StepKind{"Clipboard", 30, &User::UseClipboard},
    StepKind{"Tab", 80, &User::Tab},
    StepKind{"Return", 20, &User::Return},
    StepKind{"Arrow", 50, &User::Arrow},
    StepKind{"Choose", 40, &User::Choose},
    StepKind{"Day", 15, &User::TypeDay},
    StepKind{"Offer", 40, &User::FillOffer},
    StepKind{"Current", 8, &User::FillCurrent},
    StepKind{"Intend", 8, &User::Intend},
    StepKind{"Clear", 6, &User::ClearIntended}, // followed by a save and entering a value again
    StepKind{"Again", 6, &User::EnterAgain},
    // Rows
    StepKind{"Tick", 20, &User::Tick},
    StepKind{"Drop", 40, &User::Drop},
    StepKind{"Sort", 20, &User::Sort},
    StepKind{"Wheel", 20, &User::Wheel},
    StepKind{"Bar", 15, &User::ClickBar},
    StepKind{"Lender", 4, &User::OpenLender},
    StepKind{"Second", 20, &User::LetSecondPass},
    // Files
    StepKind{"Name", 15, &User::TypeName},
    StepKind{"Save", 10, &User::Save},
    StepKind{"Pick", 10, &User::PickName},
    StepKind{"Keep", 5, &User::LeaveOut}, // followed by a save and loading the worksheet again
    StepKind{"Elsewhere", 2, &User::ChooseType}, // loaded again in another language and country
    StepKind{"Reload", 2, &User::Reload},
    StepKind{"Unnamed", 4, &User::CloseUnnamed},
    StepKind{"New", 4, &User::New},
    StepKind{"Delete", 4, &User::Delete},
    StepKind{"BringBack", 2, &User::BringBack},
    StepKind{"Rename", 4, &User::Rename},
    StepKind{"Close", 2, &User::CloseAndStart},
    // The comparison
    StepKind{"Compare", 4, &User::OpenComparison}, // followed by steps in it and beside it
    StepKind{"Otherwise", 1, &User::CompareOtherwise},
    StepKind{"Costs", 1, &User::EnterCosts},
    StepKind{"SortCosts", 1, &User::SortCosts},
    StepKind{"Shut", 2, &User::CloseComparison},
    // Other features
    StepKind{"Language", 3, &User::SwitchLanguage},
    StepKind{"Options", 3, &User::OpenOptions},
    StepKind{"Print", 2, &User::Print},
    StepKind{"About", 1, &User::OpenAbout},
    StepKind{"Help", 1, &User::OpenHelp},
    StepKind{"WhatsThis", 2, &User::AskWhatsThis},
    StepKind{"Share", 2, &User::Share},
    StepKind{"Resize", 3, &User::Resize},
    StepKind{"Click", 20, &User::ClickAnywhere},
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
