#include "ColumnState.h"
#include "QuendNames.h"
#include "RandomCases.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace quend::compare {}
using namespace quend::compare;

namespace {

TEST(ColumnStates, AreReadAsWritten) {
    const std::vector<ColumnState> columns{
        {.column = 2}, {.column = 0, .width = 120}, {.column = 1, .width = 0, .hidden = true}};
    EXPECT_EQ("1 2:0 0:120 1:0h", WriteColumns(columns));
    EXPECT_EQ(columns, ReadColumns(WriteColumns(columns), 3));
    EXPECT_EQ("1 0:16 1:4000",
              WriteColumns({{.column = 0, .width = 1}, {.column = 1, .width = 9999}}));
}

TEST(ColumnStates, AreRefusedUnlessSound) {
    const struct {
        QByteArray bytes;
        bool sound;
    } cases[] = {
        {"1 0:0 1:0", true},
        {"1 1:0", true}, // columns of a later version are missing
        {"1", true},
        {"", false},
        {" ", false},
        {"2 0:0", false},
        {"1  0:0", false},
        {"1 0:0 ", false},
        {"1 0:0 0:0", false},
        {"1 3:0", false},
        {"1 -1:0", false},
        {"1 +1:0", false},
        {"1 0:15", false},
        {"1 0:16", true},
        {"1 0:4000", true},
        {"1 0:4001", false},
        {"1 0:99999999999999999999", false},
        {"1 0:0x", false},
        {"1 0:0hh", false},
        {"1 0:h", false},
        {"1 :0", false},
        {"1 0", false},
        {"1 0:0:0", false},
        {"1 0:0 1:0 2:0 0:0", false},
        {QByteArray("1 0:0\0", 6), false},
        {QByteArray("\xFF\xFE\x00\x00", 4), false},
        {"1 \xD9\xA0:0", false},
        {QByteArray(1'000'000, ' '), false},
        {QByteArray("1 0:") + QByteArray(1'000'000, '9'), false},
    };
    for (const auto& tested : cases) {
        EXPECT_EQ(tested.sound, ReadColumns(tested.bytes, 3).has_value())
            << tested.bytes.left(40).constData();
    }
}

TEST(ColumnStates, SurviveDamage) {
    ForRandomCases(2000, [](Random& random) {
        QByteArray bytes = WriteColumns(
            {{.column = 1, .width = 80}, {.column = 0}, {.column = 2, .width = 0, .hidden = true}});
        for (int changes = random.Int(1, 3); changes > 0; --changes) {
            bytes[random.Int(0, static_cast<int>(bytes.size()) - 1)] =
                static_cast<char>(random.Int(0, 255));
        }
        if (const auto columns = ReadColumns(bytes, 3)) {
            for (const ColumnState& state : *columns) {
                EXPECT_TRUE(state.column >= 0 && state.column < 3);
                EXPECT_TRUE(state.width >= 0 && state.width <= 4000);
            }
        }
    });
}

} // namespace
