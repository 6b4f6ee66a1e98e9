// Run by the build: reports faults of a table of texts in the format of compiler errors.

#include "TextTable.h"

#include <QFile>

#include <cstdlib>
#include <iostream>

using namespace quend;
using namespace quend::language;

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: checktexts TABLE\n";
        return EXIT_FAILURE;
    }
    const QString path = QFile::decodeName(argv[1]);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::cerr << argv[1] << ": error: " << file.errorString().toStdString() << '\n';
        return EXIT_FAILURE;
    }
    const TextTable table = TextTable::Parse(QString::fromUtf8(file.readAll()));
    for (const TextTableFault& fault : table.Faults()) {
        std::cerr << argv[1] << ':' << fault.line << ": error: " << fault.description.toStdString()
                  << '\n';
    }
    return table.Faults().empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
