#include "Program.h"

#include "CommandTextNumbers.h"
#include "ComparedFile.h"
#include "CsvReport.h"
#include "FileErrorText.h"
#include "Findings.h"
#include "InputFile.h"
#include "Language.h"
#include "LinesRun.h"
#include "Options.h"
#include "PaymentsJson.h"
#include "ResultJson.h"
#include "TextReport.h"
#include "UsageText.h"
#include "VersionRecord.h"

#include <optional>
#include <variant>

namespace quend::tool {

namespace {

Status Written(bool isWritten) { return isWritten ? Status::Well : Status::BadInput; }

/// The whole file, but not much more than a file may have.
std::optional<QByteArray> ReadAll(std::istream& in) {
    QByteArray bytes(MostBytes + 1, '\0');
    in.read(bytes.data(), bytes.size());
    bytes.resize(in.gcount());
    return in.bad() ? std::nullopt : std::optional(bytes);
}

/// One run on one file.
class FileRun {
public:
    FileRun(const Options& options, const World& world) : m_options(&options), m_world(&world) {}

    Status Run() {
        const InputFile file(*m_world, m_options->files.front());
        const auto bytes = file.Stream() != nullptr ? ReadAll(*file.Stream()) : std::nullopt;
        if (!bytes) {
            Complain(*m_world, file.Trouble());
            return Status::BadInput;
        }
        const ReadResult<ComparisonRequest> read = ReadRequest(*bytes);
        if (!read.content) {
            m_world->loadLanguage();
            Complain(*m_world, file.Sentence(FileErrorText(read.error)));
            return Status::BadInput;
        }
        m_request = *read.content;
        Override(m_request, *m_options);
        if (!m_request.today) {
            m_request.today = m_world->today();
        }
        return Answer();
    }

private:
    Status Answer() const {
        switch (m_options->task) {
        case Task::Schedule:
            return AnswerSchedule();
        case Task::PaymentBy:
            return Written(Put(*m_world, PaymentsAnswer()));
        default:
            return Written(Put(*m_world, ComparisonAnswer()));
        }
    }

    ComparedWorksheet Compared() const { return CompareFile(m_request, *m_request.today); }

    DisplayFormats Formats() const {
        m_world->loadLanguage();
        return DisplayFormats(m_world->locale());
    }

    QByteArray ComparisonAnswer() const {
        const ComparedWorksheet compared = Compared();
        switch (m_options->format) {
        case Format::Json:
            return ToJson(compared.result) + '\n';
        case Format::Csv:
            return CompareCsv(m_request.worksheet, compared.result);
        case Format::Text:
            break;
        }
        return CompareText(compared, Formats()).toUtf8();
    }

    QByteArray PaymentsAnswer() const {
        const ComparedWorksheet compared = Compared();
        const std::vector<PaymentBy> payments = PaymentsBy(compared, m_options->paymentBy);
        switch (m_options->format) {
        case Format::Json:
            return PaymentsJson(payments, m_options->paymentBy) + '\n';
        case Format::Csv:
            return PaymentsCsv(m_request.worksheet, payments);
        case Format::Text:
            break;
        }
        return PaymentsText(compared, payments, m_options->paymentBy, Formats()).toUtf8();
    }

    Status AnswerSchedule() const {
        const ComparedWorksheet compared = Compared();
        const bool isThere = m_options->place <= static_cast<int>(compared.rows.size());
        const auto rows = isThere ? ScheduleOf(compared.input, m_options->place) : std::nullopt;
        if (rows) {
            return Written(Put(*m_world, ScheduleCsv(*rows)));
        }
        m_world->loadLanguage();
        Complain(*m_world, WhyNoSchedule(compared));
        return Status::BadInput;
    }

    QString WhyNoSchedule(const ComparedWorksheet& compared) const {
        const int place = m_options->place;
        return place > static_cast<int>(compared.rows.size())
                   ? GetResourceText(TextNumber::NoSuchOffer).arg(place)
                   : LeftOutSentence(compared, place);
    }

    const Options* m_options;
    const World* m_world;
    ComparisonRequest m_request;
};

Status Refuse(const UsageError& error, const World& world) {
    world.loadLanguage();
    Complain(world, UsageErrorText(error));
    Complain(world, GetResourceText(TextNumber::SeeHelp).arg(QStringLiteral("quend-compare")));
    return Status::BadUsage;
}

Status Help(const World& world) {
    world.loadLanguage();
    return Written(Put(world, HelpText().toUtf8()));
}

Status Version(const World& world) {
    using namespace VersionRecord;
    const QString version = QStringLiteral("quend-compare %1.%2.%3\n");
    return Written(Put(world, version.arg(Major).arg(Minor).arg(Revision).toUtf8()));
}

} // namespace

Status RunProgram(const std::vector<std::string>& arguments, const World& world) {
    const std::variant<Options, UsageError> parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        return Refuse(*error, world);
    }
    const auto& options = std::get<Options>(parsed);
    switch (options.task) {
    case Task::Help:
        return Help(world);
    case Task::Version:
        return Version(world);
    case Task::Lines:
        return RunLines(options, world);
    default:
        return FileRun(options, world).Run();
    }
}

} // namespace quend::tool
