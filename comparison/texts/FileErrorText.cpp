#include "FileErrorText.h"

#include "CommandTextNumbers.h"
#include "Language.h"

#include <array>

namespace quend::comparison {

namespace {

namespace TextNumber = language::TextNumber;

/// What a text has in its second place.
enum class Second { Nothing, Member, Bytes, Offers };

struct FaultText {
    FileFault fault;
    int text;
    Second second = Second::Nothing;
};

constexpr std::array FaultTexts{
    FaultText{FileFault::NotJson, TextNumber::FileNotJson},
    FaultText{FileFault::TooLarge, TextNumber::FileTooLarge, Second::Bytes},
    FaultText{FileFault::TooDeep, TextNumber::FileTooDeep},
    FaultText{FileFault::Duplicate, TextNumber::FileDuplicate, Second::Member},
    FaultText{FileFault::WrongType, TextNumber::FileWrongType, Second::Member},
    FaultText{FileFault::NotAnAmount, TextNumber::FileNotAnAmount, Second::Member},
    FaultText{FileFault::NotANumber, TextNumber::FileNotANumber, Second::Member},
    FaultText{FileFault::OutOfRange, TextNumber::FileOutOfRange, Second::Member},
    FaultText{FileFault::NoSuchDate, TextNumber::FileNoSuchDate, Second::Member},
    FaultText{FileFault::TooManyOffers, TextNumber::FileTooManyOffers, Second::Offers},
    FaultText{FileFault::NewerVersion, TextNumber::FileNewerVersion},
};

/// A fault of a member that is not named is one of the file as a whole.
FaultText TextOf(const FileError& error) {
    for (const FaultText& text : FaultTexts) {
        if (text.fault == error.fault &&
            (text.second != Second::Member || !error.member.isEmpty())) {
            return text;
        }
    }
    return {error.fault, TextNumber::FileNoWorksheet};
}

} // namespace

QString FileErrorText(const FileError& error) {
    const FaultText found = TextOf(error);
    const QString sentence = language::GetResourceText(found.text);
    const QString line = QString::number(error.line);
    // One call for both places, so that a member with a place in its name is not filled in.
    switch (found.second) {
    case Second::Member:
        return sentence.arg(line, error.member);
    case Second::Bytes:
        return sentence.arg(line, QString::number(MostBytes));
    case Second::Offers:
        return sentence.arg(line, QString::number(MostOffers));
    case Second::Nothing:
        break;
    }
    return sentence.arg(line);
}

} // namespace quend::comparison
