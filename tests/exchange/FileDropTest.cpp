// A file of worksheets dropped on the window, wherever it is; values are dropped as before.

#include "DragFixture.h"
#include "QuendNames.h"

#include <QApplication>
#include <QUrl>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

class FileDropTest : public DragTest {
protected:
    FileDropTest() {
        Open();
        Window().OnFileDropped([this](const QString& path) { m_dropped.append(path); });
    }

    Offered DropFiles(QStringView control, const QList<QUrl>& urls,
                      Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction) {
        QMimeData data;
        data.setUrls(urls);
        const Offered offered = Over(control, data, actions);
        const QPoint place = PlaceInWindow(Control(control), Control(control).rect().center());
        QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Window().windowHandle(), &drop);
        EXPECT_EQ(m_dropped.isEmpty(), true) << "the drop must be over first";
        Settle();
        return offered;
    }

    QStringList m_dropped;
};

TEST_F(FileDropTest, OneFileIsTakenAnywhere) {
    const QUrl url(u"file:///a%20b/Home.QuendLoan"_s);
    for (const QStringView control :
         {u"txtLoanAmount", u"cboLoanName", u"txtWho(0)", u"txtInterestRate(1)", u"txtPandI(0)",
          u"picScroll", u"lblHint", u"dtNextPayment"}) {
        m_dropped.clear();
        EXPECT_EQ(DropFiles(control, {url}), Copied) << control.toString().toStdString();
        EXPECT_EQ(m_dropped, QStringList(u"/a b/Home.QuendLoan"_s));
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FileDropTest, NothingElseIsTaken) {
    const QUrl file(u"file:///a/b.quendloan"_s);
    const struct {
        QList<QUrl> urls;
        Qt::DropActions actions;
    } table[]{
        {{file, file}, Qt::CopyAction},
        {{QUrl(u"file:///a/b.txt"_s)}, Qt::CopyAction},
        {{QUrl(u"https://quend.example/b.quendloan"_s)}, Qt::CopyAction},
        {{file}, Qt::MoveAction}, // the source would delete it
        {{}, Qt::CopyAction},
    };
    for (const auto& row : table) {
        EXPECT_EQ(DropFiles(u"txtLoanAmount", row.urls, row.actions), Refused);
        EXPECT_TRUE(m_dropped.isEmpty());
    }
    Window().OnFileDropped({});
    EXPECT_EQ(DropFiles(u"txtLoanAmount", {file}), Refused);
}

TEST_F(FileDropTest, ValuesAreDroppedOnTheirFields) {
    EXPECT_EQ(Drop(u"txtPoints(3)", u"1.5"), Copied);
    EXPECT_EQ(Text(u"txtPoints(3)"), u"1.500");
    EXPECT_EQ(Drop(u"txtLoanAmount", u"5"), Refused);
    EXPECT_EQ(Drop(u"txtWho(1)", u"file:///a/b.txt"), Copied);
}

} // namespace
