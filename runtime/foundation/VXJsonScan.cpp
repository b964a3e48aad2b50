#include "runtime/foundation/VXJsonScan.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonNumber.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace Vexlor
{

namespace
{

struct ReasonRow
{
    rapidjson::ParseErrorCode code;
    const char* reason;
};

constexpr std::array kReasons{
    ReasonRow{rapidjson::kParseErrorDocumentEmpty, "the document is empty"},
    ReasonRow{rapidjson::kParseErrorDocumentRootNotSingular, "more text behind the end of the document"},
    ReasonRow{rapidjson::kParseErrorValueInvalid, "no JSON value"},
    ReasonRow{rapidjson::kParseErrorObjectMissName, "missing member name"},
    ReasonRow{rapidjson::kParseErrorObjectMissColon, "missing colon behind a member name"},
    ReasonRow{rapidjson::kParseErrorObjectMissCommaOrCurlyBracket, "missing comma or closing brace"},
    ReasonRow{rapidjson::kParseErrorArrayMissCommaOrSquareBracket, "missing comma or closing bracket"},
    ReasonRow{rapidjson::kParseErrorStringUnicodeEscapeInvalidHex, "\\u without four hexadecimal digits"},
    ReasonRow{rapidjson::kParseErrorStringUnicodeSurrogateInvalid, "unpaired surrogate"},
    ReasonRow{rapidjson::kParseErrorStringEscapeInvalid, "unknown escape sequence"},
    ReasonRow{rapidjson::kParseErrorStringMissQuotationMark, "missing closing quote"},
    ReasonRow{rapidjson::kParseErrorStringInvalidEncoding, "not valid UTF-8"},
    ReasonRow{rapidjson::kParseErrorNumberTooBig, "number too large"},
    ReasonRow{rapidjson::kParseErrorNumberMissFraction, "missing digits behind the decimal point"},
    ReasonRow{rapidjson::kParseErrorNumberMissExponent, "missing digits of the exponent"},
};

const char* ReasonOf(rapidjson::ParseErrorCode code)
{
    const auto* row = std::ranges::find(kReasons, code, &ReasonRow::code);
    return row == kReasons.end() ? "not valid JSON" : row->reason;
}

// Watches what RapidJSON lets pass and the fast parser does not.
class Watch final : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Watch>
{
public:
    Watch(const rapidjson::MemoryStream& stream, JsonScan& scan) : m_stream(stream), m_scan(scan) {}

    bool StartObject() { return Enter(); }
    bool StartArray() { return Enter(); }
    bool EndObject(rapidjson::SizeType) { return Leave(); }
    bool EndArray(rapidjson::SizeType) { return Leave(); }

    bool RawNumber(const char* digits, rapidjson::SizeType length, bool)
    {
        return JsonNumber({digits, length}).kind != JsonKind::Absent ||
               Refuse("number too large", m_stream.Tell() - length);
    }

private:
    bool Enter()
    {
        return ++m_depth <= kJsonMaxDepth ||
               Refuse("nested deeper than " + std::to_string(kJsonMaxDepth) + " levels", m_stream.Tell());
    }

    bool Leave()
    {
        --m_depth;
        return true;
    }

    bool Refuse(std::string reason, std::size_t offset)
    {
        m_scan.reason = std::move(reason);
        m_scan.offset = offset;
        return false;
    }

    const rapidjson::MemoryStream& m_stream;
    JsonScan& m_scan;
    int m_depth = 0;
};

unsigned HexValue(std::string_view digits)
{
    unsigned value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return value;
}

// RapidJSON takes a low surrogate that follows no high one. In a text that it has read, backslashes stand in
// strings only and every escape sequence is whole.
std::size_t FindLowSurrogate(std::string_view text)
{
    for (auto at = text.find('\\'); at != std::string_view::npos; at = text.find('\\', at))
    {
        const unsigned unit = text[at + 1] == 'u' ? HexValue(text.substr(at + 2, 4)) : 0;
        if (unit >= 0xDC00 && unit <= 0xDFFF)
            return at;
        const bool isPair = unit >= 0xD800 && unit <= 0xDBFF;
        at += isPair ? 12 : 2;
    }
    return text.size();
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20; }

// What RapidJSON calls by another name: it sees the end of the text where a NUL is or nothing follows.
std::string ReasonAt(std::string_view text, std::size_t offset, rapidjson::ParseErrorCode code)
{
    const bool inString = code == rapidjson::kParseErrorStringMissQuotationMark ||
                          code == rapidjson::kParseErrorStringEscapeInvalid;
    if (offset < text.size() && inString && IsControl(text[offset]))
        return "control character in a string";
    const bool isWhole = code == rapidjson::kParseErrorDocumentEmpty || inString;
    if (offset >= text.size() && !isWhole)
        return "unexpected end of the document";
    if (offset < text.size() && text[offset] == '\0')
        return "a zero byte, which no JSON text has";
    return ReasonOf(code);
}

// RapidJSON stops at the first letter that is none of null, true or false; a person looks for the word.
std::size_t PlaceOf(std::string_view text, std::size_t offset, rapidjson::ParseErrorCode code)
{
    const bool isWord = code == rapidjson::kParseErrorValueInvalid && offset < text.size();
    while (isWord && offset > 0 && text[offset - 1] >= 'a' && text[offset - 1] <= 'z')
        --offset;
    return offset;
}

// Where text that both parsers should agree on still differs: something behind a NUL, a low surrogate.
void FindHiddenFault(std::string_view text, std::size_t end, JsonScan& scan)
{
    if (end < text.size())
    {
        scan.reason = ReasonOf(rapidjson::kParseErrorDocumentRootNotSingular);
        scan.offset = end;
        return;
    }
    const std::size_t surrogate = FindLowSurrogate(text);
    if (surrogate == text.size())
        return;
    scan.reason = ReasonOf(rapidjson::kParseErrorStringUnicodeSurrogateInvalid);
    scan.offset = surrogate;
}

} // namespace

JsonScan ScanJson(std::string_view text)
{
    constexpr unsigned kFlags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag |
                                rapidjson::kParseNumbersAsStringsFlag;
    JsonScan scan;
    rapidjson::MemoryStream stream(text.data(), text.size());
    Watch watch(stream, scan);
    rapidjson::Reader reader;
    reader.Parse<kFlags>(stream, watch);
    if (!reader.HasParseError())
        FindHiddenFault(text, stream.Tell(), scan);
    else if (scan.reason.empty())
    {
        scan.offset = PlaceOf(text, reader.GetErrorOffset(), reader.GetParseErrorCode());
        scan.reason = ReasonAt(text, scan.offset, reader.GetParseErrorCode());
    }
    return scan;
}

std::string JsonPlace(std::string_view text, std::size_t offset)
{
    const std::string_view before = text.substr(0, offset);
    const auto line = 1 + std::ranges::count(before, '\n');
    const std::string_view onLine = before.substr(before.rfind('\n') + 1);
    const auto isFirstByte = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto column = 1 + std::ranges::count_if(onLine, isFirstByte);
    return std::to_string(line) + ':' + std::to_string(column);
}

} // namespace Vexlor
