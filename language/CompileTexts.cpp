// Run by the build: writes the texts of a table as rows of a constant array (NumberedText.h), and
// reports faults of the table in the format of compiler errors.

#include "TextTable.h"

#include <QFile>
#include <QSaveFile>

#include <cstdlib>
#include <iostream>

using namespace quend;
using namespace quend::language;

namespace {

/// A text as a literal. A table has no control characters but line breaks.
QString Literal(QString text) {
    text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'"', QStringLiteral("\\\""))
        .replace(u'\n', QStringLiteral("\\n"));
    return QStringLiteral("u\"%1\"").arg(text);
}

QByteArray RowsOf(const TextTable& table) {
    QString rows;
    for (const auto& [number, text] : table.Texts()) { // by rising numbers
        rows += QStringLiteral("{%1, %2},\n").arg(QString::number(number), Literal(text));
    }
    return rows.toUtf8();
}

int Failed(const QFileDevice& file) {
    std::cerr << file.fileName().toStdString() << ": error: " << file.errorString().toStdString()
              << '\n';
    return EXIT_FAILURE;
}

int Compile(const QString& from, const QString& to) {
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly)) {
        return Failed(source);
    }
    const TextTable table = TextTable::Parse(QString::fromUtf8(source.readAll()));
    for (const TextTableFault& fault : table.Faults()) {
        std::cerr << from.toStdString() << ':' << fault.line
                  << ": error: " << fault.description.toStdString() << '\n';
    }
    if (!table.Faults().empty()) {
        return EXIT_FAILURE;
    }
    QSaveFile target(to);
    const bool isWritten =
        target.open(QIODevice::WriteOnly) && target.write(RowsOf(table)) >= 0 && target.commit();
    return isWritten ? EXIT_SUCCESS : Failed(target);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::cerr << "usage: compiletexts TABLE ROWS\n";
        return EXIT_FAILURE;
    }
    return Compile(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]));
}
