#include "StoreNotice.h"

#include "FailureReport.h"
#include "Language.h"
#include "LoanStore.h"
#include "Messages.h"
#include "TextNumbers.h"

#include <utility>

QString RepairNotice(const RegistryAPI& store, const std::filesystem::path& keptAs) {
    return GetResourceText(TextNumber::StoreRepaired)
        .arg(QString::fromStdString(keptAs.string()))
        .arg(LoanStore(store).Names().size());
}

QString TroubleText(StoreTrouble trouble) {
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
    const QString reason = ofStore != nullptr ? TroubleText(ofStore->Trouble()) : QString();
    return reason.isEmpty() ? FailureText(failure) : reason + u'\n' + FailureText(failure);
}

RegistryAPI StoreThatTells(const std::filesystem::path& place, Messages& messages,
                           std::function<std::string()> today) {
    const auto tell = [place, &messages](const std::filesystem::path& keptAs) {
        messages.Post(RepairNotice(RegistryAPI(place), keptAs));
    };
    return RegistryAPI(place, RegistryAPI::UsualWait, {std::move(today), tell});
}
