// One wrong number at a time, in a store that has every kind of page: all damage is detected, and
// all readable data is recovered.
#include "QuendNames.h"
#include "StoreCheck.h"

#include "StoreFixture.h"
#include "StoreSnapshot.h"
#include "StoreSoundness.h"

#include <algorithm>
#include <optional>

namespace {

constexpr std::size_t PageSize = 4'096;
constexpr std::size_t Worksheets = 300;
constexpr std::size_t AllKeys = Worksheets + 3; // the keys above them
constexpr std::size_t KeysOfPage = 120;         // are lost with it, and recovered from their index

enum Kind : std::uint8_t { InnerIndex = 2, InnerTable = 5, LeafIndex = 10, LeafTable = 13 };

void Put(std::string& bytes, std::size_t at, std::size_t count, std::uint64_t number) {
    for (std::size_t i = 0; i < count; ++i) {
        bytes[at + i] = static_cast<char>(number >> 8 * (count - 1 - i) & 0xFF);
    }
}

void Add(std::string& bytes, std::size_t at, std::size_t count, std::int64_t more) {
    Put(bytes, at, count, BigEndian(bytes, at, count) + static_cast<std::uint64_t>(more));
}

class StoreDamageTest : public StoreFixture {
protected:
    /// Hundreds of worksheets, a text longer than a page, and free pages.
    std::string Build() {
        registry.InTransaction([](const RegistryAPI& step) {
            for (std::size_t i = 0; i < Worksheets; ++i) {
                const std::string key = Base + "\\Worksheet number " + std::to_string(i);
                step.CreateKey(User, key);
                step.SetValue(User, key, "Lender", RegistryType::Text, "Halverworks Savings Bank");
            }
            step.SetValue(User, Base, "Long", RegistryType::Text, std::string(9'000, 'x'));
            step.SetValue(User, Base, "Gone", RegistryType::Text, std::string(90'000, 'x'));
        });
        registry.DeleteValue(User, Base, "Gone");
        MakeOneFile(store);
        return BytesOf(store);
    }

    void ExpectNoticed(const std::string& damaged, std::size_t keys) const {
        std::filesystem::remove_all(store.parent_path());
        std::filesystem::create_directory(store.parent_path());
        WriteBytes(store, damaged);
        EXPECT_FALSE(IsSound(StoreSnapshot(store)));
        const StoreCondition condition = PrepareStore(store, "2026-11-21");
        EXPECT_EQ(condition.state, StoreCondition::State::Repaired);
        EXPECT_GE(condition.keys, keys);
        EXPECT_LE(condition.keys, AllKeys);
        EXPECT_TRUE(IsSound(StoreSnapshot(store)));
    }

    const RegistryAPI registry{store};
};

struct HeaderCase {
    const char* what;
    std::size_t at;
    std::size_t count; ///< in bytes
    std::int64_t more; ///< added to the number
};

TEST_F(StoreDamageTest, AWrongNumberInTheHeaderIsNoticed) {
    const std::string whole = Build();
    ASSERT_TRUE(IsSound(StoreSnapshot(store)));
    ASSERT_NE(BigEndian(whole, 32, 4), 0U);
    const std::size_t trunk = (BigEndian(whole, 32, 4) - 1) * PageSize;
    ASSERT_GT(BigEndian(whole, trunk + 4, 4), 1U);
    // clang-format off
    const std::vector<HeaderCase> cases{
        // what                              at           bytes  more
        { "a version that only reads",       18,          1,     1 },
        { "bytes kept free on each page",    20,          1,     1 },
        { "other shares of a page",          21,          1,     1 },
        { "a change that was not counted",   24,          4,     1 },
        { "a page more than there are",      28,          4,     1 },
        { "a page less than there are",      28,          4,     -1 },
        { "the first page as a free one",  32, 4, 1 - static_cast<std::int64_t>(BigEndian(whole, 32, 4)) },
        { "no first free page",              32,          4,     1'000 },
        { "a free page more",                36,          4,     1 },
        { "another format of the layout",    44,          4,     1 },
        { "pages that may move",             52,          4,     1 },
        { "other letters",                   56,          4,     1 },
        { "pages that move at a time",       64,          4,     1 },
        { "free pages after the last",       trunk,       4,     1'000 },
        { "more free pages than a page has", trunk + 4,   4,     2'000 },
        { "a free page less in the list",    trunk + 4,   4,     -1 },
        { "a free page that is none",        trunk + 8,   4,     1'000 },
        { "a free page twice",               trunk + 12,  4,     static_cast<std::int64_t>(BigEndian(whole, trunk + 8, 4)) - static_cast<std::int64_t>(BigEndian(whole, trunk + 12, 4)) },
    };
    // clang-format on
    for (const HeaderCase& row : cases) {
        SCOPED_TRACE(row.what);
        std::string damaged = whole;
        Add(damaged, row.at, row.count, row.more);
        ExpectNoticed(damaged, AllKeys);
    }
}

/// The offset of the first page of a kind, not counting page 1.
std::optional<std::size_t> FirstPage(const std::string& bytes, Kind kind) {
    for (std::size_t at = PageSize; at < bytes.size(); at += PageSize) {
        // A tree page states its wasted bytes: 60 at most. Other pages begin with a number.
        if (bytes[at] == static_cast<char>(kind) && BigEndian(bytes, at + 3, 2) > 1 &&
            BigEndian(bytes, at + 7, 1) <= 60 && BigEndian(bytes, at + 5, 2) > 100) {
            return at;
        }
    }
    return std::nullopt;
}

struct PageCase {
    const char* what;
    Kind kind;
    std::size_t at; ///< within the page
    std::size_t count;
    std::int64_t more;
};

TEST_F(StoreDamageTest, AWrongNumberOnAPageIsNoticed) {
    const std::string whole = Build();
    // clang-format off
    const std::vector<PageCase> cases{
        // what                              kind        at  bytes  more
        { "no kind of page",                 LeafTable,  0,  1,     -6 },
        { "another kind of page",            LeafIndex,  0,  1,     3 },
        { "free bytes behind the page",      LeafTable,  1,  2,     0xFFF0 },
        { "free bytes that are no block",    LeafIndex,  1,  2,     0x0FFD },
        { "a row more",                      LeafTable,  3,  2,     1 },
        { "a row less",                      LeafTable,  3,  2,     -1 },
        { "more rows than the page can hold", LeafIndex, 3,  2,     5'000 },
        { "the rows begin sooner",           LeafTable,  5,  2,     -1 },
        { "the rows begin at the end",       LeafTable,  5,  2,     50 },
        { "a wasted byte",                   LeafIndex,  7,  1,     1 },
        { "a row within the list of rows",   LeafTable,  8,  2,     -4'000 },
        { "a row behind the page",           LeafTable,  8,  2,     4'000 },
        { "two rows that are one",           LeafTable,  8,  2,     -20 },
        { "a page below that is none",       InnerTable, 8,  4,     9'000 },
        { "a page below that is the first",  InnerTable, 8,  4,     -1 },
        { "a page below that is none",       InnerIndex, 8,  4,     9'000 },
        { "no page where a row leads",       InnerTable, 12, 2,     -1 },
    };
    // clang-format on
    for (const PageCase& row : cases) {
        SCOPED_TRACE(testing::Message() << row.what << ", kind " << int{row.kind});
        const std::optional<std::size_t> page = FirstPage(whole, row.kind);
        ASSERT_TRUE(page);
        std::string damaged = whole;
        Add(damaged, *page + row.at, row.count, row.more);
        ExpectNoticed(damaged, AllKeys - KeysOfPage);
    }
}

struct RowCase {
    const char* what;
    Kind kind;
    std::size_t at; ///< within the first row's bytes
    std::uint8_t byte;
};

/// A row has its length, its number (in tables), the length of its header and in the header a code
/// for each column. On an inner page of a table it has only the child page and the largest number
/// there.
TEST_F(StoreDamageTest, AWrongByteInARowIsNoticed) {
    const std::string whole = Build();
    // clang-format off
    const std::vector<RowCase> cases{
        // what                              kind        at  byte
        { "longer than the file",            LeafIndex,  0,  0xFF },
        { "a head longer than the row",      LeafIndex,  1,  0x7F },
        { "a head shorter than its codes",   LeafIndex,  1,  2 },
        { "a code without a meaning",        LeafIndex,  2,  10 },
        { "a broken number as the key",      LeafIndex,  2,  7 },
        { "no number as the key",            LeafIndex,  2,  0 },
        { "a text longer than the row",      LeafIndex,  3,  0x7F },
        { "a number out of order",           LeafTable,  1,  0x7F },
        { "a bound below what it bounds",    InnerTable, 4,  1 },
    };
    // clang-format on
    for (const RowCase& row : cases) {
        SCOPED_TRACE(row.what);
        const std::optional<std::size_t> page = FirstPage(whole, row.kind);
        ASSERT_TRUE(page);
        const std::size_t pointers = row.kind == InnerTable ? 12 : 8;
        const std::size_t position = *page + BigEndian(whole, *page + pointers, 2);
        std::string damaged = whole;
        damaged[position + row.at] = static_cast<char>(row.byte);
        ASSERT_NE(damaged, whole);
        ExpectNoticed(damaged, AllKeys - KeysOfPage);
    }
}

/// The first page is compared exactly. A row there has its length in two bytes, its number, the
/// length of its header and the codes of its columns; the first column is a text.
TEST_F(StoreDamageTest, AWrongByteInTheLayoutIsNoticed) {
    const std::string whole = Build();
    const std::size_t row = BigEndian(whole, 108, 2);
    std::string blob = whole;
    ASSERT_EQ(blob[row + 4], 23); // a text of five letters
    blob[row + 4] = 22;           // five bytes
    ExpectNoticed(blob, AllKeys);
    std::string letter = whole;
    letter.replace(letter.find("CREATE"), 6, "CREATF");
    ExpectNoticed(letter, AllKeys);
}

/// A row of the same length whose columns have other types.
TEST_F(StoreDamageTest, ATextWhereBytesBelongIsNoticed) {
    const std::string whole = Build();
    std::size_t pages = 0;
    for (std::size_t page = PageSize; page < whole.size(); page += PageSize) {
        const std::size_t row = page + BigEndian(whole, page + 8, 2);
        if (whole[page] != LeafIndex || BigEndian(whole, page + 3, 2) < 2 ||
            row + 4 > page + PageSize) {
            continue;
        }
        SCOPED_TRACE(page / PageSize);
        std::string damaged = whole;
        damaged[row + 3] = static_cast<char>(damaged[row + 3] ^ 1);
        ExpectNoticed(damaged, AllKeys - KeysOfPage);
        ++pages;
    }
    EXPECT_GT(pages, 2U);
}

void Rename(std::string& bytes, const std::string& from, const std::string& to) {
    std::size_t found = 0;
    for (std::size_t at = bytes.find(from); at != std::string::npos; at = bytes.find(from, at)) {
        bytes.replace(at, from.size(), to);
        ++found;
    }
    EXPECT_GE(found, 1U) << from;
}

/// The store has each key's name as typed and as sorted. A name that cannot have been typed is
/// replaced by the sorted one.
TEST_F(StoreDamageTest, AKeyWhoseNameIsNoneGetsTheSortedOne) {
    std::string damaged = Build();
    Add(damaged, 36, 4, 1); // so that recovery runs
    Rename(damaged, "Worksheet number 150", "Worksheet\\number 150");
    Rename(damaged, "Worksheet number 151", "Worksheet numbex 151");
    Rename(damaged, "Worksheet number 152", "Worksheet \xFFumber 152");
    ExpectNoticed(damaged, AllKeys);
    const std::vector<std::string> names = registry.GetSubKeys(User, Base);
    EXPECT_EQ(names.size(), Worksheets);
    for (const char* const number : {"150", "151", "152"}) {
        EXPECT_TRUE(std::ranges::count(names, std::string("WORKSHEET NUMBER ") + number)) << number;
    }
    EXPECT_TRUE(std::ranges::count(names, "Worksheet number 154"));
}

TEST_F(StoreDamageTest, APageThatNothingLeadsToIsNoticed) {
    std::string damaged = Build() + std::string(PageSize, '\0');
    Add(damaged, 28, 4, 1);
    ExpectNoticed(damaged, AllKeys);
}

TEST_F(StoreDamageTest, AStoreOfHundredsOfWorksheetsIsReadAndSound) {
    const std::string whole = Build();
    for (const Kind kind : {InnerIndex, InnerTable, LeafIndex, LeafTable}) {
        EXPECT_TRUE(FirstPage(whole, kind)) << int{kind};
    }
    EXPECT_TRUE(IsSound(StoreSnapshot(store)));
    EXPECT_EQ(registry.GetSubKeys(User, Base).size(), Worksheets);
    EXPECT_EQ(PrepareStore(store, "2026-11-21").state, StoreCondition::State::Sound);
    EXPECT_EQ(BytesOf(store), whole);
}

} // namespace
