#include "InputFile.h"

#include "CommandTextNumbers.h"
#include "Language.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace quend::tool {

namespace {

constexpr const char* StandardInputName = "-";

} // namespace

InputFile::InputFile(const World& world, std::string name)
    : m_world(&world), m_name(std::move(name)) {
    if (m_name == StandardInputName) {
        m_stream = world.in;
        return;
    }
    m_file.open(m_name, std::ios::in | std::ios::binary);
    if (m_file.is_open()) {
        m_stream = &m_file;
    }
}

QString InputFile::Trouble() const {
    m_world->loadLanguage();
    std::error_code unknown;
    const bool isMissing = m_name != StandardInputName && !std::filesystem::exists(m_name, unknown);
    return Sentence(
        GetResourceText(isMissing ? TextNumber::FileMissing : TextNumber::FileUnreadable));
}

QString InputFile::Sentence(const QString& about) const {
    m_world->loadLanguage();
    const QString name = m_name == StandardInputName ? GetResourceText(TextNumber::StandardInput)
                                                     : QString::fromStdString(m_name);
    return name + QStringLiteral(": ") + about;
}

} // namespace quend::tool
