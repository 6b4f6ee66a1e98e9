#include "StoreLayout.h"

#include "Sqlite.h"

#include <string>

namespace StoreLayout {

State StateOf(const Connection& connection) {
    const std::int64_t version = connection.Ask("PRAGMA user_version");
    const std::int64_t application = connection.Ask("PRAGMA application_id");
    if (version == 0 && application == 0) {
        return connection.Ask("SELECT count(*) FROM sqlite_schema") == 0 ? State::Empty
                                                                         : State::Foreign;
    }
    if (application != ApplicationId || version <= 0) {
        return State::Foreign;
    }
    return version < Version ? State::Older : version == Version ? State::Current : State::Newer;
}

void Migrate(const Connection& connection) {
    const auto from = static_cast<std::size_t>(connection.Ask("PRAGMA user_version"));
    for (std::size_t version = from; version < Steps.size(); ++version) {
        connection.Execute(Steps[version]);
    }
    const std::string marks = "PRAGMA application_id=" + std::to_string(ApplicationId) +
                              ";PRAGMA user_version=" + std::to_string(Version);
    connection.Execute(marks.c_str());
}

} // namespace StoreLayout
