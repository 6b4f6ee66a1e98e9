#include "StoreNotice.h"

#include "FailureReport.h"
#include "Language.h"
#include "MessageQueue.h"
#include "RepairedWorksheets.h"
#include "StoreNames.h"
#include "TextNumbers.h"
#include "WorksheetStore.h"

#include <algorithm>
#include <utility>

namespace quend::storage {

namespace {

QString Names(const QStringList& names) {
    constexpr qsizetype most = 10;
    QStringList quoted;
    for (const QString& name : names.first(std::min(most, names.size()))) {
        quoted.append(u'“' + name + u'”');
    }
    const QString all = quoted.join(QStringLiteral(", "));
    return names.size() > most ? all + QStringLiteral(", … (%1)").arg(names.size()) : all;
}

} // namespace

/// Insert the names last, because they may contain placeholders.
QString RepairNotice(const RepairedWorksheets& loans, const std::filesystem::path& keptAs) {
    const QString whole = loans.whole == 1
                              ? GetResourceText(TextNumber::OneWholeLoan)
                              : GetResourceText(TextNumber::WholeLoans).arg(loans.whole);
    const QString notice = GetResourceText(TextNumber::StoreRepaired)
                               .arg(QString::fromStdString(keptAs.string()), whole);
    return loans.incomplete.isEmpty()
               ? notice
               : notice + QStringLiteral("\n\n") +
                     GetResourceText(TextNumber::LoansIncomplete).arg(Names(loans.incomplete));
}

QString NameFaultText(NameFault fault) {
    return GetResourceText(fault == NameFault::Empty     ? TextNumber::NoNameToSave
                           : fault == NameFault::NewLoan ? TextNumber::NameOfNewLoan
                                                         : TextNumber::NameNotPossible);
}

QString ErrorText(StoreTrouble trouble) {
    switch (trouble) {
    case StoreTrouble::DiskFull:
        return GetResourceText(TextNumber::StoreDiskFull);
    case StoreTrouble::ReadOnly:
        return GetResourceText(TextNumber::StoreReadOnly);
    case StoreTrouble::NotAllowed:
        return GetResourceText(TextNumber::StoreNotAllowed);
    case StoreTrouble::InUse:
        return GetResourceText(TextNumber::StoreInUse);
    default:
        return {};
    }
}

QString StoreFailureText(const Failure& failure) {
    const auto* const ofStore = dynamic_cast<const StoreFailure*>(&failure);
    const QString reason = ofStore != nullptr ? ErrorText(ofStore->Trouble()) : QString();
    return reason.isEmpty() ? FailureText(failure) : reason + u'\n' + FailureText(failure);
}

RegistryAPI ReportingStore(const std::filesystem::path& place, MessageQueue& messages,
                           std::function<std::string()> today) {
    const auto report = [place, &messages](const std::filesystem::path& keptAs) {
        messages.Post(RepairNotice(FindIncomplete(RegistryAPI(place)), keptAs));
    };
    return RegistryAPI(place, RegistryAPI::UsualWait, {std::move(today), report, NamedLoans()});
}

} // namespace quend::storage
