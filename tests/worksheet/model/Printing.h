#pragma once

#include "Date.h"
#include "Field.h"
#include "Mark.h"
#include "Money.h"
#include "QuendNames.h"

#include <QString>

#include <ostream>

// How failed tests print the values of the worksheet. GoogleTest looks for these names.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(Field field, std::ostream* out) {
    *out << RuleOf(field.id).control.latin1();
    if (field.row != Field::NoRow) {
        *out << '(' << field.row.value << ')';
    }
}

inline void PrintTo(Money amount, std::ostream* out) {
    *out << amount.TenThousandths() << "/10000";
}

inline void PrintTo(Date date, std::ostream* out) { *out << "day " << date.Days(); }

inline void PrintTo(Mark mark, std::ostream* out) {
    *out << (mark == Mark::None ? "no mark" : mark == Mark::Missing ? "missing" : "raised");
}
