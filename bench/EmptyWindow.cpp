// A Qt window of 300 entry fields that does nothing: what any such window costs. scripts/bench
// measures the program's start against it, in the same rounds.

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    constexpr int fields = 300;
    constexpr int columns = 15;
    QMainWindow window;
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    for (int field = 0; field < fields; ++field) {
        auto* edit = new QLineEdit;
        edit->setMinimumWidth(40);
        grid->addWidget(edit, field / columns, field % columns);
    }
    window.setCentralWidget(content);
    window.show();
    return QApplication::exec();
}
