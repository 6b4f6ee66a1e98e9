// What the user reads about a handler that failed.

#include "FailureReport.h"

#include "FakeMessages.h"
#include "Language.h"
#include "PaymentNotice.h"
#include "QuendNames.h"
#include "Sheet.h"
#include "TextNumbers.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

template <class Exception>
std::function<void()> Throwing(const Exception& exception) {
    return [exception] { throw exception; };
}

TEST(FailureReport, ReportsEveryExceptionInItsWording) {
    const QString large = GetResourceText(TextNumber::NumberTooLarge);
    const QString never = GetResourceText(TextNumber::NeverRepaid);
    const struct {
        std::function<void()> handler;
        FailureReport::Wording wording;
        QString shown;
    } cases[] = {
        {Throwing(Failure(7, "a", "b")), FailureMessage, u"errn=7  src=a  desc=b"_s},
        {Throwing(OverflowFailure("a")), FailureMessage,
         large + u"\nerrn=6  src=a  desc=Overflow"_s},
        {Throwing(NeverRepaidFailure("")), FailureMessage,
         never + u"\nerrn=6  src=  desc=Overflow"_s},
        {Throwing(std::bad_alloc()), FailureMessage, u"errn=5  src=Loan  desc=std::bad_alloc"_s},
        {Throwing(std::logic_error("b")), FailureMessage, u"errn=5  src=Loan  desc=b"_s},
        {Throwing(Failure(7, "a", "é")), FailureDescription, u"é"_s},
        {Throwing(std::logic_error("b")), NoMessage, {}},
    };
    for (const auto& row : cases) {
        FakeMessages boxes;
        MessageQueue queue(boxes);
        const FailureReport report(queue);
        EXPECT_TRUE(report.Guard([] {}, row.wording));
        EXPECT_FALSE(report.Guard(row.handler, row.wording));
        queue.ShowRest();
        EXPECT_EQ(boxes.Texts(), row.shown.isEmpty() ? QStringList() : QStringList(row.shown));
    }
}

TEST(FailureReport, ReportsWhatFailsAfterAMessageAndInTheTimerOfTheNotice) {
    const auto fail = Throwing(Failure(7, "a", "b"));
    const QString failure = u"errn=7  src=a  desc=b"_s;
    FakeMessages boxes;
    MessageQueue queue(boxes);
    queue.Post(u"read"_s, fail);
    queue.ShowRest();
    EXPECT_EQ(boxes.Texts(), QStringList({u"read"_s, failure}));

    Sheet sheet;
    sheet.worksheet.SetPaymentNoticeShown(true);
    QObject window;
    PaymentNotice notice(window, sheet.worksheet, queue, fail);
    window.findChild<QTimer*>(u"Timer1"_s)->setInterval(0);
    notice.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.Texts().size() == 3; }));
    EXPECT_EQ(boxes.Texts().last(), failure);
}

} // namespace
