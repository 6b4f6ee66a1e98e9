#include "StoreSchema.h"

#include "Sqlite.h"

namespace quend::registry::StoreSchema {

namespace {

std::vector<Object> ObjectsOfNewStore() {
    const Connection connection = Connection::InMemory();
    Migrate(connection);
    std::vector<Object> objects;
    Statement list(connection.Handle(), "SELECT type, name, tbl_name, sql FROM sqlite_schema");
    while (list.Next()) {
        objects.push_back({list.Bytes(0), list.Bytes(1), list.Bytes(2), list.Bytes(3)});
    }
    return objects;
}

} // namespace

State StateOf(const Connection& connection) {
    const std::int64_t version = connection.Ask("PRAGMA user_version");
    if (connection.Ask("PRAGMA application_id") != ApplicationId || version <= 0 ||
        version > Version) {
        return State::Other;
    }
    return version < Version ? State::Older : State::Current;
}

void Migrate(const Connection& connection, std::span<const char* const> steps) {
    const auto from = static_cast<std::size_t>(connection.Ask("PRAGMA user_version"));
    for (std::size_t version = from; version < steps.size(); ++version) {
        connection.Execute(steps[version]);
    }
    const std::string marks = "PRAGMA application_id=" + std::to_string(ApplicationId) +
                              ";PRAGMA user_version=" + std::to_string(steps.size());
    connection.Execute(marks.c_str());
}

const std::vector<Object>& Objects() {
    static const std::vector<Object> objects = ObjectsOfNewStore();
    return objects;
}

} // namespace quend::registry::StoreSchema
