// Prints worksheets with arbitrary texts: every page ends, nothing exceeds its column, no line of a
// lender is lost, and the file is complete.

#include "DrawnItems.h"
#include "FilePrinter.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "QuendNames.h"
#include "QuietQt.h"
#include "Report.h"
#include "RulerMetrics.h"
#include "SampleForm.h"
#include "WrapLenderText.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

double RulerWidth(const QString& line) { return static_cast<double>(line.size()); }

QString WithoutGaps(QString text) { return text.remove(u' ').remove(u'\r').remove(u'\n'); }

void TryWrapping(const QString& text, int column) {
    const QString wrapped = WrapLenderText(text, column, RulerWidth);
    EXPECT_EQ(WithoutGaps(wrapped), WithoutGaps(text)); // only blanks and breaks are lost
}

class PrintFuzz : public testing::Test {
protected:
    void Try(const std::string& input) {
        const QuietQt quiet;
        const QString text = TextOf(input);
        const std::size_t number = std::hash<std::string>()(input);
        TryWrapping(text, static_cast<int>(number % 40));
        ReportInput form = SampleForm(3);
        form.header.front().text = text;
        form.rows.at(number % form.rows.size()).back() = text;
        form.rows.back().at(number % SampleColumns) = text;
        form.legalNotice = number % 7 == 0 ? text : form.legalNotice;
        Report report(form, QSizeF(20'000, 6'000 + static_cast<double>(number % 10'000)),
                      m_metrics);
        for (const Report::Section section : Report::Sections) {
            (report.*section)();
        }
        report.PrintPageFooter();
        EXPECT_GE(report.Pages().pages.size(), 1U);
        EXPECT_LE(report.Pages().pages.size(), 20U + input.size());
        if (number % 8 == 0) {
            ExpectWholeFile(report.Pages());
        }
    }
    void ExpectWholeFile(const PrintedPages& pages) {
        const QString path = m_folder.filePath(QStringLiteral("pages.pdf"));
        FilePrinter(path, QPageSize(QPageSize::A4)).Print(pages);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith("%PDF-"));
        EXPECT_TRUE(bytes.trimmed().endsWith("%%EOF"));
    }

private:
    QTemporaryDir m_folder;
    RulerMetrics m_metrics;
};

TEST_F(PrintFuzz, TheCorpusIsPrinted) {
    FuzzTarget("text", [this](const std::string& input) { Try(input); }).TryCorpus();
}

TEST_F(PrintFuzz, AnyTextIsPrinted) {
    const FuzzTarget target("text", [this](const std::string& input) { Try(input); });
    target.TryAtRandom([&](FuzzRandom& random) {
        std::string text;
        for (std::size_t count = 1 + random.Below(8); count > 0; --count) {
            text += random.OneIn(4) ? Damaged(random, random.AnyOf(target.Corpus()))
                                    : Patched(random, HostilePieces);
        }
        return text;
    });
}

/// A text dropped on a lender may be as long as the clipboard allows.
TEST_F(PrintFuzz, TheLongestTextsAreBrokenAtOnce) {
    constexpr qsizetype longest = 50'000;
    QElapsedTimer clock;
    clock.start();
    for (const QString& piece :
         {QStringLiteral("x"), QStringLiteral("a "), QStringLiteral("-"), QStringLiteral("\r\n"),
          QString::fromUtf8("e\u0301"), QString::fromUtf8("\U0001F468\u200D")}) {
        const QString text = piece.repeated(longest / piece.size());
        TryWrapping(text, 20);
    }
    EXPECT_LT(clock.elapsed(), 20'000) << "of under one";
}

} // namespace
