#include "KeyTree.h"

#include "Names.h"

#include <string_view>

namespace quend::registry {

namespace {

constexpr const char* FindChild = "SELECT id FROM Keys WHERE parent=? AND folded=?";
constexpr const char* MakeChild = "INSERT INTO Keys(parent, folded, name) VALUES(?, ?, ?)";
constexpr const char* LastMade = "SELECT last_insert_rowid()";
constexpr const char* AnyChild = "SELECT 1 FROM Keys WHERE parent=? LIMIT 1";
constexpr const char* DropValues = "DELETE FROM KeyValues WHERE key=?";
constexpr const char* DropKey = "DELETE FROM Keys WHERE id=?";
constexpr const char* ListChildren = "SELECT name FROM Keys WHERE parent=? ORDER BY folded";
constexpr const char* ListValues = "SELECT name, type, data FROM KeyValues WHERE key=?";
constexpr const char* GetValue = "SELECT type, data FROM KeyValues WHERE key=? AND folded=?";
// A value keeps the name that it was first written with.
constexpr const char* SetValue =
    "INSERT INTO KeyValues(key, folded, name, type, data) VALUES(?, ?, ?, ?, ?) "
    "ON CONFLICT DO UPDATE SET type=excluded.type, data=excluded.data";
constexpr const char* DropValue = "DELETE FROM KeyValues WHERE key=? AND folded=?";

} // namespace

Statement& KeyTree::Prepared(const char* command) {
    return m_prepared.try_emplace(command, m_connection->Handle(), command).first->second;
}

std::optional<std::int64_t> KeyTree::Child(std::int64_t parent, const std::string& folded) {
    Statement& find = Prepared(FindChild).With(parent, folded);
    if (!find.Next()) {
        return std::nullopt;
    }
    const std::int64_t key = find.Number(0);
    find.Reset();
    return key;
}

std::optional<std::int64_t> KeyTree::Find(std::int64_t root, const Path& path) {
    if (m_found && m_found->root == root && m_found->path == path) {
        return m_found->key;
    }
    std::int64_t key = root;
    for (const std::string& element : path) {
        const std::optional<std::int64_t> child = Child(key, Folded(element));
        if (!child) {
            return std::nullopt;
        }
        key = *child;
    }
    m_found = Found{root, path, key};
    return key;
}

std::int64_t KeyTree::Create(std::int64_t root, const Path& path) {
    std::int64_t key = root;
    for (const std::string& element : path) {
        const std::string folded = Folded(element);
        const std::optional<std::int64_t> child = Child(key, folded);
        if (child) {
            key = *child;
            continue;
        }
        Prepared(MakeChild).With(key, folded, std::string_view(element)).Run();
        Statement& made = Prepared(LastMade).With();
        made.Next();
        key = made.Number(0);
        made.Reset();
    }
    return key;
}

void KeyTree::Delete(std::int64_t key) {
    Statement& anyChild = Prepared(AnyChild).With(key);
    const bool hasSubkeys = anyChild.Next();
    anyChild.Reset();
    if (key < 0 || hasSubkeys) {
        return;
    }
    m_found.reset();
    Prepared(DropValues).With(key).Run();
    Prepared(DropKey).With(key).Run();
}

std::vector<std::string> KeyTree::Subkeys(std::int64_t key) {
    std::vector<std::string> names;
    for (Statement& list = Prepared(ListChildren).With(key); list.Next();) {
        names.push_back(list.Bytes(0));
    }
    return names;
}

std::map<std::string, KeyTree::Value> KeyTree::Values(std::int64_t key) {
    std::map<std::string, Value> values;
    for (Statement& list = Prepared(ListValues).With(key); list.Next();) {
        values.insert_or_assign(list.Bytes(0), Value{list.Number(1), list.Bytes(2)});
    }
    return values;
}

std::optional<KeyTree::Value> KeyTree::Get(std::int64_t key, const std::string& name) {
    Statement& get = Prepared(GetValue).With(key, Folded(name));
    if (!get.Next()) {
        return std::nullopt;
    }
    Value value{get.Number(0), get.Bytes(1)};
    get.Reset();
    return value;
}

void KeyTree::Set(std::int64_t key, const std::string& name, const Value& value) {
    Prepared(SetValue)
        .With(key, Folded(name), std::string_view(name), value.type, value.bytes)
        .Run();
}

void KeyTree::Remove(std::int64_t key, const std::string& name) {
    Prepared(DropValue).With(key, Folded(name)).Run();
}

} // namespace quend::registry
