#include "KeyPath.h"

#include "RegistryLimits.h"
#include "Utf8.h"

#include <string_view>

namespace quend::registry {

namespace {

std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

bool Fits(std::string_view name, std::size_t longest) {
    return IsUtf8(name) && Utf16Length(name) <= longest;
}

} // namespace

std::optional<std::vector<std::string>> PathElements(const std::string& keyName) {
    std::string_view rest = UpToNul(keyName);
    std::vector<std::string> elements;
    for (bool more = !rest.empty(); more;) {
        const std::string_view element = rest.substr(0, rest.find('\\'));
        if (element.empty() || !Fits(element, LongestKeyName) || elements.size() == DeepestPath) {
            return std::nullopt;
        }
        elements.emplace_back(element);
        more = element.size() < rest.size();
        rest.remove_prefix(element.size() + (more ? 1 : 0));
    }
    return elements;
}

std::optional<std::string> ValueNameOf(const std::string& valueName) {
    const std::string_view name = UpToNul(valueName);
    return Fits(name, LongestValueName) ? std::optional<std::string>(name) : std::nullopt;
}

} // namespace quend::registry
