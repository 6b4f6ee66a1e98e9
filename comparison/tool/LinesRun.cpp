#include "LinesRun.h"

#include "Comparison.h"
#include "FileErrorText.h"
#include "InputFile.h"
#include "LineReader.h"
#include "ResultJson.h"
#include "WorksheetFile.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <limits>
#include <optional>

namespace quend::tool {

namespace {

class Lines {
public:
    Lines(const Options& options, const World& world) : m_options(&options), m_world(&world) {}

    Status Run() {
        const std::vector<std::string> input{"-"};
        for (const std::string& name : m_options->files.empty() ? input : m_options->files) {
            if (!ReadFile(name)) {
                return Status::BadInput;
            }
        }
        return m_status;
    }

private:
    /// False where the output failed.
    bool ReadFile(const std::string& name) {
        const InputFile file(*m_world, name);
        if (file.Stream() == nullptr) {
            ReportUnread(file);
            return true;
        }
        LineReader reader(*file.Stream(), MostBytes);
        LineReader::Kind kind = reader.Next();
        for (; kind == LineReader::Kind::Line || kind == LineReader::Kind::TooLong;
             kind = reader.Next()) {
            ++m_line;
            const QByteArray answer = kind == LineReader::Kind::Line
                                          ? Answer(reader.Line())
                                          : AnswerTo({.fault = FileFault::TooLarge, .member = {}});
            if (!Put(*m_world, answer + '\n')) {
                return false;
            }
        }
        if (kind == LineReader::Kind::Failed) {
            ReportUnread(file);
        }
        return true;
    }

    void ReportUnread(const InputFile& file) {
        m_status = Status::BadInput;
        Complain(*m_world, file.Trouble());
    }

    QByteArray Answer(const QByteArray& line) {
        ReadResult<ComparisonRequest> read = ReadRequest(line);
        if (!read.content) {
            return AnswerTo(read.error);
        }
        Override(*read.content, *m_options);
        if (!read.content->today && !m_today) {
            m_today = m_world->today();
        }
        return ToJson(Compare(ToInput(*read.content, m_today.value_or(Date()))));
    }

    QByteArray AnswerTo(FileError error) {
        m_status = Status::BadInput;
        error.line = static_cast<int>(std::min<qint64>(m_line, std::numeric_limits<int>::max()));
        m_world->loadLanguage();
        const QJsonObject answer{
            {QStringLiteral("error"), FileErrorText(error)},
            {QStringLiteral("line"), m_line},
            {QStringLiteral("member"),
             error.member.isEmpty() ? QJsonValue() : QJsonValue(error.member)},
        };
        return QJsonDocument(answer).toJson(QJsonDocument::Compact);
    }

    const Options* m_options;
    const World* m_world;
    qint64 m_line = 0;
    std::optional<Date> m_today; ///< the system's, where it was needed: one for all lines
    Status m_status = Status::Well;
};

} // namespace

Status RunLines(const Options& options, const World& world) { return Lines(options, world).Run(); }

} // namespace quend::tool
