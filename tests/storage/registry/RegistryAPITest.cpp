// The functions, the same on every platform: tested on the store file and, cross-compiled for
// the platform that has a registry, on that registry.
#include "RegistryAPI.h"
#include "QuendNames.h"

#include "Failure.h"
#include "TestStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr RegistryRoot User = RegistryRoot::CurrentUser;
const std::string Absent = BaseKey + "\\Absent";

class RegistryAPITest : public testing::Test {
protected:
    RegistryAPITest() { registry.CreateKey(User, BaseKey); }

    std::string Text(const std::string& name, const std::string& otherwise = "default") const {
        return std::get<std::string>(
            registry.GetValue(User, BaseKey, name, RegistryType::Text, otherwise));
    }
    std::int32_t Number(const std::string& name, std::int32_t otherwise = -77) const {
        return std::get<std::int32_t>(
            registry.GetValue(User, BaseKey, name, RegistryType::Number, otherwise));
    }
    std::string KeyOf(const std::string& name) const { return BaseKey + '\\' + name; }

    TestStore store;
    const RegistryAPI& registry = store.Registry();
};

std::string Repeated(std::size_t count, const std::string& text) {
    std::string repeated;
    for (std::size_t i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

std::vector<std::byte> Bytes(std::size_t count) {
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes.push_back(static_cast<std::byte>(i * 37 % 256));
    }
    return bytes;
}

/// The number and description of the failure; empty when there is none.
std::string FailureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return std::to_string(failure.Number()) + " src=" + failure.Source() +
               " desc=" + failure.Description();
    }
    return "";
}

const std::string NotMade = "1001 src= desc=Unable to create the registry key";
const std::string Unsupported = "1001 src= desc=Unsupported value type";

TEST_F(RegistryAPITest, TextsComeBackAsTheyWereWritten) {
    // clang-format off
    const std::vector<std::string> texts{
        "", " ", "  both  ", "plain", "Préstamo de José €1.234,56", "line\nline\r\n\ttab", "\\\"'%_?*",
        "e\xCC\x81 as two", "\xC3\xA9 as one",                      // not normalized
        "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7 family", "\xF0\x9F\x8F\xA0", "עברית العربية 日本語 हिन्दी",
        "\xEF\xBB\xBFmark first", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF",
        std::string("nul\0inside", 10), std::string("nul last\0", 9), std::string("\0", 1), std::string("two\0\0", 5),
        Repeated(1'022, "x") + " ",
    };
    // clang-format on
    for (const std::string& text : texts) {
        SCOPED_TRACE(testing::PrintToString(text));
        registry.SetValue(User, BaseKey, "Text", RegistryType::Text, text);
        EXPECT_EQ(Text("Text"), text);
    }
}

TEST_F(RegistryAPITest, TextsOfMoreThan1023CharactersAreNotRead) {
    const std::string family = "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7";
    const std::vector<std::string> characters{"x",   "é", "e\xCC\x81", "€", "\xF0\x9F\x8F\xA0",
                                              family};
    for (const std::string& character : characters) {
        SCOPED_TRACE(character);
        registry.SetValue(User, BaseKey, "Fits", RegistryType::Text, Repeated(1'023, character));
        EXPECT_EQ(Text("Fits"), Repeated(1'023, character));
        registry.SetValue(User, BaseKey, "Long", RegistryType::Text, Repeated(1'024, character));
        EXPECT_EQ(Text("Long"), "default");
    }
}

TEST_F(RegistryAPITest, NumbersAndBytesComeBackAsTheyWereWritten) {
    const std::vector<std::int32_t> numbers{0,
                                            1,
                                            -1,
                                            RegistryFlag(true),
                                            RegistryFlag(false),
                                            42,
                                            0x0c0a,
                                            std::numeric_limits<std::int32_t>::max(),
                                            std::numeric_limits<std::int32_t>::min()};
    for (const std::int32_t number : numbers) {
        registry.SetValue(User, BaseKey, "Number", RegistryType::Number, number);
        EXPECT_EQ(Number("Number"), number);
    }
    EXPECT_EQ(RegistryFlag(true), -1);
    for (const std::size_t count : {0U, 1U, 2U, 255U, 4'095U, 4'096U, 4'097U}) {
        SCOPED_TRACE(count);
        const RegistryValue otherwise = Bytes(3);
        registry.SetValue(User, BaseKey, "Bytes", RegistryType::Binary, Bytes(count));
        EXPECT_EQ(registry.GetValue(User, BaseKey, "Bytes", RegistryType::Binary, otherwise),
                  count <= 4'096 ? RegistryValue(Bytes(count)) : otherwise);
    }
}

TEST_F(RegistryAPITest, WhatIsMissingIsTheDefaultWhateverItsType) {
    const std::vector<RegistryValue> defaults{"", "0", std::int32_t{0}, std::int32_t{6}, Bytes(2)};
    for (const RegistryValue& otherwise : defaults) {
        for (const std::int16_t type :
             {RegistryType::Text, RegistryType::Binary, RegistryType::Number}) {
            EXPECT_EQ(registry.GetValue(User, BaseKey, "Absent", type, otherwise), otherwise);
            EXPECT_EQ(registry.GetValue(User, Absent, "Absent", type, otherwise), otherwise);
            EXPECT_EQ(registry.GetValue(User, "\\" + BaseKey, "", type, otherwise), otherwise);
        }
    }
}

TEST_F(RegistryAPITest, OtherTypesAreRefusedOnReadingAndIgnoredOnWriting) {
    registry.SetValue(User, BaseKey, "Kept", RegistryType::Text, "kept");
    for (const int type : {-1, 0, 2, 5, 7, 11, 32'767}) {
        SCOPED_TRACE(type);
        const auto code = static_cast<std::int16_t>(type);
        const auto read = [&](const std::string& key, const std::string& name) {
            return FailureOf([&] { registry.GetValue(User, key, name, code, "default"); });
        };
        EXPECT_EQ(read(BaseKey, "Kept"), Unsupported);
        EXPECT_EQ(read(BaseKey, "Absent"), Unsupported);
        EXPECT_EQ(read(Absent, "Kept"), ""); // the key is opened before the type is checked
        registry.SetValue(User, BaseKey, "Kept", code, "changed");
        EXPECT_EQ(Text("Kept"), "kept");
    }
}

struct ConversionCase {
    const char* what;
    std::int16_t type;
    RegistryValue written;
    RegistryValue asText;
    RegistryValue asNumber;
    RegistryValue asBytes;
};

RegistryValue Raw(std::initializer_list<int> bytes) {
    std::vector<std::byte> raw;
    for (const int byte : bytes) {
        raw.push_back(static_cast<std::byte>(byte));
    }
    return raw;
}

TEST_F(RegistryAPITest, ValuesOfAnotherTypeAreReadByTheirBytes) {
    constexpr std::int16_t T = RegistryType::Text;
    constexpr std::int16_t N = RegistryType::Number;
    constexpr std::int16_t B = RegistryType::Binary;
    const RegistryValue none = std::string("none");
    // clang-format off
    const std::vector<ConversionCase> cases{
        // what                   type  written                asText                             asNumber           asBytes
        { "number",               N,    67'305'985,            std::string("\1\2\3\4"),           67'305'985,        Raw({1, 2, 3, 4}) },
        { "text of a number",     T,    std::string("6"),      std::string("6"),                  std::int32_t{'6'}, Raw({'6', 0}) },
        { "text too long for it", T,    std::string("1234"),   std::string("1234"),               none,              Raw({'1', '2', '3', '4', 0}) },
        { "empty text",           T,    std::string(),         std::string(),                     std::int32_t{0},   Raw({}) },
        { "bytes",                B,    Raw({65, 66}),         std::string("AB"),                 0x4241,            Raw({65, 66}) },
        { "bytes with a NUL",     B,    Raw({65, 0}),          std::string("A"),                  65,                Raw({65, 0}) },
        { "bytes of no text",     B,    Raw({0xE9, 65, 1, 2, 3}), std::string("\xEF\xBF\xBD" "A\1\2\3"), none,         Raw({0xE9, 65, 1, 2, 3}) },
        { "number made a text",   T,    -12,                   std::string("-12"),                0x0032312D,        Raw({'-', '1', '2', 0}) },
        { "bytes made a text",    T,    Raw({65, 66}),         std::string("AB"),                 0x4241,            Raw({65, 66, 0}) },
        { "text made a number",   N,    std::string("-2"),     std::string("\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD" ""), -2, Raw({0xFE, 0xFF, 0xFF, 0xFF}) },
        { "no number",            N,    std::string("2x"),     none,                              none,              none },
        { "number too large",     N,    std::string("9999999999"), none,                          none,              none },
        { "bytes for a number",   N,    Raw({1}),              none,                              none,              none },
        { "text for bytes",       B,    std::string("AB"),     none,                              none,              none },
    };
    // clang-format on
    for (const ConversionCase& row : cases) {
        SCOPED_TRACE(row.what);
        registry.DeleteValue(User, BaseKey, "Value");
        registry.SetValue(User, BaseKey, "Value", row.type, row.written);
        EXPECT_EQ(registry.GetValue(User, BaseKey, "Value", T, none), row.asText);
        EXPECT_EQ(registry.GetValue(User, BaseKey, "Value", N, none), row.asNumber);
        EXPECT_EQ(registry.GetValue(User, BaseKey, "Value", B, none), row.asBytes);
    }
}

TEST_F(RegistryAPITest, NamesAreKeptAsWrittenAndComparedWithoutRegardToCase) {
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> alike{
        {"LoanCount", "LOANCOUNT"}, {"préstamo É", "PRÉSTAMO é"}, {"Ελλάδα", "ΕΛΛΆΔΑ"}, {"жёлтый", "ЖЁЛТЫЙ"}, {"ß", "ß"},
        {"ﬁne Ǆ", "ﬁNE ǆ"},
    };
    const std::vector<std::pair<std::string, std::string>> different{
        {"é", "e"}, {"\xC3\xA9", "e\xCC\x81"}, {"ß", "SS"}, {"a", "a "}, {"a", " a"}, {"Loan 1", "Loan 01"},
    };
    // clang-format on
    for (const auto& [written, other] : alike) {
        SCOPED_TRACE(written);
        EXPECT_FALSE(registry.CreateKey(User, KeyOf(written)));
        EXPECT_TRUE(registry.CreateKey(User, KeyOf(other)));
        EXPECT_TRUE(registry.KeyExists(User, KeyOf(other)));
        EXPECT_EQ(registry.GetSubKeys(User, BaseKey), std::vector<std::string>{written});
        registry.SetValue(User, KeyOf(written), written, RegistryType::Number, 1);
        registry.SetValue(User, KeyOf(other), other, RegistryType::Number, 2);
        EXPECT_EQ(registry.GetValue(User, KeyOf(written), written, RegistryType::Number, 0),
                  RegistryValue(2));
        registry.DeleteKey(User, KeyOf(other));
        EXPECT_FALSE(registry.KeyExists(User, KeyOf(written)));
    }
    for (const auto& [one, other] : different) {
        SCOPED_TRACE(std::string(one).append(" / ").append(other));
        EXPECT_FALSE(registry.CreateKey(User, KeyOf(one)));
        EXPECT_FALSE(registry.KeyExists(User, KeyOf(other)));
        registry.DeleteKey(User, KeyOf(one));
    }
}

TEST_F(RegistryAPITest, SubkeysComeAlphabeticallyWithoutRegardToCase) {
    // clang-format off
    const std::vector<std::string> sorted{
        " blank", "10", "2", "A house", "a horse", "B", "b2", "Zoo", "é", "Ÿ", "я", "日本",
        "\xF0\x9F\x8F\xA0", "\xEF\xBC\xA1 wide", // in order of UTF-16 units
    };
    // clang-format on
    std::vector<std::string> created = sorted;
    std::reverse(created.begin(), created.end());
    for (const std::string& name : created) {
        EXPECT_FALSE(registry.CreateKey(User, KeyOf(name))) << name;
    }
    std::vector<std::string> expected = sorted;
    std::swap(expected[3], expected[4]); // "a horse" comes before "A house"
    EXPECT_EQ(registry.GetSubKeys(User, BaseKey), expected);
}

TEST_F(RegistryAPITest, AllReadableValuesOfAKeyAreListedByName) {
    using Values = std::vector<NamedValue>;
    EXPECT_EQ(registry.GetValues(User, BaseKey), Values());
    EXPECT_EQ(registry.GetValues(User, Absent), Values());
    EXPECT_EQ(registry.GetValues(User, BaseKey + '\\'), Values());
    const Values expected{{"Bytes", RegistryType::Binary, Bytes(3)},
                          {"Empty", RegistryType::Text, std::string()},
                          {"Number", RegistryType::Number, std::int32_t{-1}},
                          {"Text É", RegistryType::Text, std::string("é\0b", 4)}};
    for (const NamedValue& value : expected) {
        registry.SetValue(User, BaseKey, value.name, value.type, value.value);
    }
    registry.SetValue(User, BaseKey, "Long", RegistryType::Text, Repeated(1'024, "x"));
    registry.CreateKey(User, KeyOf("Sub"));
    EXPECT_EQ(registry.GetValues(User, BaseKey), expected);
    registry.InTransaction([&](const RegistryAPI& step) {
        step.DeleteValue(User, BaseKey, "Bytes");
        EXPECT_EQ(step.GetValues(User, BaseKey), Values(expected.begin() + 1, expected.end()));
    });
}

TEST_F(RegistryAPITest, ManySubkeysAreAllListed) {
    std::vector<std::string> expected;
    for (int i = 1'000; i < 1'250; ++i) {
        expected.push_back("Loan " + std::to_string(i));
        registry.CreateKey(User, KeyOf(expected.back()));
    }
    EXPECT_EQ(registry.GetSubKeys(User, BaseKey), expected);
}

TEST_F(RegistryAPITest, OneBlankNameMeansNoSubkeys) {
    EXPECT_EQ(registry.GetSubKeys(User, BaseKey), std::vector<std::string>{std::string(260, ' ')});
    EXPECT_EQ(registry.GetSubKeys(User, Absent), std::vector<std::string>{});
    EXPECT_EQ(registry.GetSubKeys(User, "\\"), std::vector<std::string>{});
    const std::vector<std::string> top = registry.GetSubKeys(User, "");
    EXPECT_NE(std::find(top.begin(), top.end(), "Software"), top.end());
}

TEST_F(RegistryAPITest, KeysAreMadeWithAllTheirLevels) {
    registry.SetValue(User, BaseKey, "", RegistryType::Text, "of the key itself");
    EXPECT_TRUE(registry.CreateKey(User, BaseKey));
    EXPECT_EQ(Text(""), "of the key itself");
    EXPECT_FALSE(registry.CreateKey(User, KeyOf("One\\Two\\Three")));
    EXPECT_TRUE(registry.CreateKey(User, KeyOf("One\\Two")));
    EXPECT_EQ(registry.GetSubKeys(User, KeyOf("one\\TWO")), std::vector<std::string>{"Three"});
    EXPECT_TRUE(registry.CreateKey(User, ""));
    EXPECT_TRUE(registry.KeyExists(User, ""));
}

struct PathCase {
    const char* what;
    std::string path; ///< below the base key
    bool holds;
    std::string listedAs;
};

TEST_F(RegistryAPITest, PathsThatNoKeyCanHaveAreRefused) {
    const std::string home = "\xF0\x9F\x8F\xA0"; // two UTF-16 units
    // clang-format off
    const std::vector<PathCase> cases{
        // what                     path                           holds  listedAs
        { "nothing but backslash",  "\\",                          false, "" },
        { "trailing backslash",     "A\\",                         false, "" },
        { "trailing, doubled",      R"(A\\)",                      false, "" },
        { "leading backslash",      R"(\A)",                       false, "" },
        { "doubled backslash",      R"(A\\B)",                     false, "" },
        { "no name",                "",                            false, "" },
        { "longest name",           Repeated(255, "x"),            true,  Repeated(255, "x") },
        { "longest, three bytes",   Repeated(255, "€"),            true,  Repeated(255, "€") },
        { "longest, four bytes",    Repeated(127, home),           true,  Repeated(127, home) },
        { "name too long",          Repeated(256, "x"),            false, "" },
        { "too long, four bytes",   Repeated(128, home),           false, "" },
        { "no text",                "\xE9",                        false, "" },
        { "half a surrogate pair",  "\xED\xA0\x80",                false, "" },
        { "up to a NUL",            std::string("A\0B", 3),        true,  "A" },
        { "slash",                  "A/B",                         true,  "A/B" },
        { "blank",                  " ",                           true,  " " },
        { "dots",                   "..",                          true,  ".." },
    };
    // clang-format on
    for (const PathCase& row : cases) {
        SCOPED_TRACE(row.what);
        const std::string path = KeyOf(row.path);
        EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, path); }), row.holds ? "" : NotMade);
        EXPECT_EQ(registry.KeyExists(User, path), row.holds);
        registry.SetValue(User, path, "Name", RegistryType::Text, "value");
        EXPECT_EQ(registry.GetValue(User, path, "Name", RegistryType::Text, ""),
                  RegistryValue(row.holds ? "value" : ""));
        if (row.holds) {
            EXPECT_EQ(registry.GetSubKeys(User, BaseKey), std::vector<std::string>{row.listedAs});
        }
        registry.DeleteKey(User, path);
        EXPECT_FALSE(registry.KeyExists(User, path));
    }
    EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, '\\' + KeyOf("A")); }), NotMade);
    EXPECT_FALSE(registry.KeyExists(User, KeyOf("A")));
    EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, KeyOf(Repeated(600, "A\\"))); }), NotMade);
}

TEST_F(RegistryAPITest, ABackslashTooManyReachesNoOtherKey) {
    registry.SetValue(User, BaseKey, "Name", RegistryType::Text, "base");
    for (const char* const tail : {"\\", "\\\\", "\\\\\\"}) {
        registry.DeleteKey(User, BaseKey + tail); // nothing is below it yet
        EXPECT_EQ(Text("Name"), "base");
    }
    registry.CreateKey(User, KeyOf("Alpha"));
    registry.SetValue(User, KeyOf("Alpha"), "Name", RegistryType::Text, "alpha");
    for (const std::string& path :
         {KeyOf("Alpha\\"), KeyOf("Alpha\\\\"), KeyOf("\\Alpha"), "\\" + KeyOf("Alpha")}) {
        SCOPED_TRACE(path);
        EXPECT_FALSE(registry.KeyExists(User, path));
        EXPECT_EQ(registry.GetValue(User, path, "Name", RegistryType::Text, ""), RegistryValue(""));
        EXPECT_EQ(registry.GetValueType(User, path, "Name"), 0);
        EXPECT_EQ(registry.GetSubKeys(User, path), std::vector<std::string>{});
        registry.SetValue(User, path, "Name", RegistryType::Text, "another");
        registry.DeleteValue(User, path, "Name");
        registry.DeleteKey(User, path);
        EXPECT_EQ(registry.GetValue(User, KeyOf("Alpha"), "Name", RegistryType::Text, ""),
                  RegistryValue("alpha"));
    }
}

TEST_F(RegistryAPITest, LongPathsReachTheirKeys) {
    std::string path = BaseKey;
    for (int level = 0; level < 30; ++level) {
        path += "\\A level with a rather long name " + std::to_string(level);
    }
    EXPECT_FALSE(registry.CreateKey(User, path));
    EXPECT_TRUE(registry.CreateKey(User, path));
    registry.SetValue(User, path, "Name", RegistryType::Text, "deep");
    EXPECT_EQ(registry.GetValue(User, path, "Name", RegistryType::Text, ""), RegistryValue("deep"));
    registry.DeleteKey(User, path);
    EXPECT_FALSE(registry.KeyExists(User, path));
    EXPECT_TRUE(registry.KeyExists(User, path.substr(0, path.rfind('\\'))));
}

TEST_F(RegistryAPITest, KeysAreDeletedWithTheirValuesUnlessTheyHaveSubkeys) {
    registry.CreateKey(User, KeyOf("Parent\\Child"));
    for (const std::string& key : {KeyOf("Parent"), KeyOf("Parent\\Child")}) {
        registry.SetValue(User, key, "Name", RegistryType::Text, "value");
    }
    registry.DeleteKey(User, KeyOf("Parent"));
    EXPECT_TRUE(registry.KeyExists(User, KeyOf("Parent\\Child")));
    EXPECT_EQ(registry.GetValue(User, KeyOf("Parent"), "Name", RegistryType::Text, ""),
              RegistryValue("value"));
    registry.DeleteKey(User, KeyOf("Parent\\Child"));
    registry.DeleteKey(User, KeyOf("Parent"));
    EXPECT_FALSE(registry.KeyExists(User, KeyOf("Parent")));
    registry.CreateKey(User, KeyOf("Parent"));
    EXPECT_EQ(registry.GetValue(User, KeyOf("Parent"), "Name", RegistryType::Text, ""),
              RegistryValue(""));
    registry.DeleteKey(User, Absent); // deleting a missing key is not an error
}

TEST_F(RegistryAPITest, ValuesAreDeletedByName) {
    registry.SetValue(User, BaseKey, "One", RegistryType::Text, "1");
    registry.SetValue(User, BaseKey, "", RegistryType::Text, "default value");
    registry.DeleteValue(User, BaseKey, "ONE");
    registry.DeleteValue(User, BaseKey, "Absent");
    registry.DeleteValue(User, Absent, "One");
    EXPECT_EQ(Text("One"), "default");
    EXPECT_EQ(Text(""), "default value");
    registry.DeleteValue(User, BaseKey, "");
    EXPECT_EQ(Text(""), "default");
}

TEST_F(RegistryAPITest, NothingIsWrittenWhereThereIsNoKey) {
    registry.SetValue(User, Absent, "Name", RegistryType::Text, "value");
    EXPECT_FALSE(registry.KeyExists(User, Absent));
    EXPECT_EQ(registry.GetValue(User, Absent, "Name", RegistryType::Text, ""), RegistryValue(""));
}

TEST_F(RegistryAPITest, ValuesChangeTheirTypeWithWhatIsWritten) {
    registry.SetValue(User, BaseKey, "Value", RegistryType::Text, "text");
    registry.SetValue(User, BaseKey, "VALUE", RegistryType::Number, 7);
    EXPECT_EQ(Number("Value"), 7);
    registry.SetValue(User, BaseKey, "value", RegistryType::Text, "text again");
    EXPECT_EQ(Text("Value"), "text again");
}

TEST_F(RegistryAPITest, AStepReadsWhatItWrites) {
    registry.InTransaction([](const RegistryAPI& step) {
        EXPECT_FALSE(step.CreateKey(User, BaseKey + "\\Loan"));
        step.SetValue(User, BaseKey + "\\Loan", "Name", RegistryType::Text, "value");
        EXPECT_EQ(step.GetValue(User, BaseKey + "\\Loan", "Name", RegistryType::Text, ""),
                  RegistryValue("value"));
    });
    registry.ReadInTransaction([](const RegistryAPI& step) {
        EXPECT_EQ(step.GetValue(User, BaseKey + "\\Loan", "Name", RegistryType::Text, ""),
                  RegistryValue("value"));
        EXPECT_EQ(step.GetSubKeys(User, BaseKey), std::vector<std::string>{"Loan"});
    });
}

} // namespace
