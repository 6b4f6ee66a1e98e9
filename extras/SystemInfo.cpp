#include "SystemInfo.h"

#include <QChar>

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace quend::extras {

namespace {

constexpr const char* ToolKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* ToolValue = "PATH";
constexpr const char* FolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr const char* FolderValue = "MSINFO";
constexpr const char* ToolInFolder = R"(\MSINFO32.EXE)";

/// The value read as this type. No value if the read returns its default; two reads with different
/// defaults show this.
template <class Value>
std::optional<Value> Read(const std::function<RegistryValue(const RegistryValue&)>& read,
                          const Value& one, const Value& other) {
    const RegistryValue first = read(one);
    return first == read(other) ? std::optional(std::get<Value>(first)) : std::nullopt;
}

QString Characters(const std::vector<std::byte>& bytes) {
    QString text;
    for (const std::byte byte : bytes) {
        text += QChar(std::to_integer<ushort>(byte));
    }
    return text;
}

std::optional<QString> PathOfTool(const RegistryAPI& store, const SystemInfoInterface& system) {
    constexpr RegistryRoot root = RegistryRoot::LocalMachine;
    if (auto tool = GetKeyValue(store, root, ToolKey, ToolValue)) {
        return tool;
    }
    if (const auto folder = GetKeyValue(store, root, FolderKey, FolderValue)) {
        return *folder + QLatin1String(ToolInFolder);
    }
    return system.installed();
}

} // namespace

std::optional<QString> GetKeyValue(const RegistryAPI& store, RegistryRoot keyRoot,
                                   const std::string& keyName, const std::string& valueName) {
    const std::int64_t type = store.GetValueType(keyRoot, keyName, valueName);
    const auto readAs = [&](std::int16_t wanted) {
        return [&, wanted](const RegistryValue& missing) {
            return store.GetValue(keyRoot, keyName, valueName, wanted, missing);
        };
    };
    if (type == RegistryType::Text) {
        const auto text = Read(readAs(RegistryType::Text), std::string(), std::string("missing"));
        return text ? std::optional(QString::fromStdString(*text)) : std::nullopt;
    }
    if (type == RegistryType::Number) {
        const auto number = Read(readAs(RegistryType::Number), std::int32_t{0}, std::int32_t{1});
        return number ? std::optional(QString::number(*number)) : std::nullopt;
    }
    const auto bytes =
        Read(readAs(RegistryType::Binary), std::vector<std::byte>(), std::vector<std::byte>(1));
    return type != 0 && bytes ? std::optional(Characters(*bytes)) : std::nullopt;
}

bool StartSysInfo(const RegistryAPI& store, const SystemInfoInterface& system) {
    const std::optional<QString> tool = PathOfTool(store, system);
    return tool && system.start(*tool);
}

} // namespace quend::extras
