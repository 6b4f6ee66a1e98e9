// The hourglass is shown during a long action and disappears afterwards.

#include "EnterValues.h"
#include "FileCommands.h"
#include "LoanNameBox.h"
#include "OfferRows.h"
#include "OptionsFixture.h"
#include "QuendNames.h"
#include "StoreFolder.h"
#include "WindowFixture.h"

#include <QCursor>
#include <QGuiApplication>
#include <QLineEdit>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<Qt::CursorShape> Pointer() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor == nullptr ? std::nullopt : std::optional(cursor->shape());
}

class BusyPointerOfTheStore : public WindowTest {};

TEST_F(BusyPointerOfTheStore, IsShownWhileAWorksheetIsLoaded) {
    const StoreFolder folder;
    Open();
    const FileCommands files(Window(), WorksheetStore(folder.Store()));
    Window().Rows().GrowTo(Row{7});
    for (Row row{0}; row <= Row{7}; ++row.value) {
        EnterText(SheetToWrite(), {FieldId::Who, row}, u"Bank"_s);
    }
    SheetToWrite().SetLoanName(u"Home"_s);
    WorksheetStore(folder.Store()).Save(SheetToWrite());

    Open(); // six rows: two are created while the worksheet loads
    const FileCommands again(Window(), WorksheetStore(folder.Store()));
    std::optional<Qt::CursorShape> meanwhile;
    QObject::connect(&Window().Rows(), &OfferRows::RowCreated, &Window(),
                     [&] { meanwhile = Pointer(); });
    Q_EMIT Get<LoanNameBox>(u"cboLoanName").Picked(u"Home"_s);
    EXPECT_EQ(RowCount(), 8);
    EXPECT_EQ(meanwhile, Qt::WaitCursor);
    EXPECT_EQ(Pointer(), std::nullopt);
}

using BusyPointerOfTheOptions = OptionsDialog;

TEST_F(BusyPointerOfTheOptions, IsShownWhileAChosenPictureIsLoaded) {
    m_pictures.answer = Picture(u"house.bmp", {30, 20});
    Open();
    std::optional<Qt::CursorShape> meanwhile;
    QObject::connect(&Get<QLineEdit>(u"txtWallpaper"), &QLineEdit::textChanged, &Dialog(),
                     [&] { meanwhile = Pointer(); });
    Click(u"cmdWallpaper");
    EXPECT_EQ(Text(u"txtWallpaper"), m_pictures.answer);
    EXPECT_EQ(meanwhile, Qt::WaitCursor);
    EXPECT_EQ(Pointer(), std::nullopt);
}

} // namespace
