#include "StoreNotice.h"

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

RegistryAPI StoreThatTells(const std::filesystem::path& place, Messages& messages,
                           std::function<std::string()> today) {
    const auto tell = [place, &messages](const std::filesystem::path& keptAs) {
        messages.Post(RepairNotice(RegistryAPI(place), keptAs));
    };
    return RegistryAPI(place, RegistryAPI::UsualWait, {std::move(today), tell});
}
