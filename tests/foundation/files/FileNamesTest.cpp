// Names of files from the user's texts.

#include "FileNames.h"
#include "QuendNames.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(FileNames, AreSafeOnEverySystem) {
    const struct {
        QString text;
        QString name;
    } table[]{
        {u"Our new home"_s, u"Our new home"_s},
        {u"Casa: año 2026 / “sí” 2.5 %"_s, u"Casa año 2026 “sí” 2.5 %"_s},
        {u"..\\a/b:c*d?e\"f<g>h|i\x7f\n"_s, u"a b c d e f g h i"_s},
        {u". .hidden"_s, u"hidden"_s},
        {u"///"_s, u""_s},
        {u" "_s, u""_s},
        {QString(300, u'x'), QString(80, u'x')},
        {QString(79, u'x') + u"💶"_s, QString(79, u'x')},
    };
    for (const auto& row : table) {
        EXPECT_EQ(SafeFileName(row.text).toStdString(), row.name.toStdString());
    }
}

} // namespace
