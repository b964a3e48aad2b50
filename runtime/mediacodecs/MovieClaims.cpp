#include "MovieClaims.h"

extern "C"
{
#include <libavformat/avio.h>
#include <libavutil/macros.h>
}

#include <algorithm>
#include <array>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr std::int64_t kHeader = 8;
constexpr std::int64_t kLongHeader = 16;
constexpr unsigned kToTheEnd = 0;
constexpr unsigned kIsLong = 1;
constexpr std::int64_t kPacketSamples = 1024; // of plain sound, which libavformat takes together
// More entries than any file has bytes; what one table tells of is less than a hundredth of it.
constexpr std::int64_t kMostEntries = std::int64_t{1} << 62;

constexpr auto Type(char a, char b, char c, char d) { return static_cast<unsigned>(MKBETAG(a, b, c, d)); }

constexpr auto kMovie = Type('m', 'o', 'o', 'v');
constexpr auto kTrack = Type('t', 'r', 'a', 'k');
constexpr auto kCompressed = Type('c', 'm', 'o', 'v');
constexpr auto kMovieHeader = Type('m', 'v', 'h', 'd');
constexpr auto kSizes = Type('s', 't', 's', 'z');
constexpr auto kChunksOfSamples = Type('s', 't', 's', 'c');
constexpr auto kRun = Type('t', 'r', 'u', 'n');

constexpr std::array kContainers{kMovie,
                                 kTrack,
                                 Type('d', 'i', 'n', 'f'),
                                 Type('e', 'd', 't', 's'),
                                 Type('m', 'd', 'i', 'a'),
                                 Type('m', 'i', 'n', 'f'),
                                 Type('m', 'o', 'o', 'f'),
                                 Type('m', 'v', 'e', 'x'),
                                 Type('s', 'c', 'h', 'i'),
                                 Type('s', 'i', 'n', 'f'),
                                 Type('s', 't', 'b', 'l'),
                                 Type('t', 'r', 'a', 'f'),
                                 Type('t', 'r', 'e', 'f'),
                                 Type('u', 'd', 't', 'a'),
                                 Type('w', 'a', 'v', 'e')};
// Some recorders leave a movie's header in one of these, and libavformat looks.
constexpr std::array kHidingPlaces{Type('f', 'r', 'e', 'e'), Type('h', 'o', 'o', 'v')};
constexpr std::array kChunkOffsets{Type('s', 't', 'c', 'o'), Type('c', 'o', '6', '4')};

template <class List>
bool Has(const List& list, unsigned type)
{
    return std::ranges::find(list, type) != list.end();
}

struct Box
{
    unsigned type = 0;
    std::int64_t content = 0;
    std::int64_t end = 0; ///< 0 when there is no box
};

class MovieWalk
{
public:
    explicit MovieWalk(AVIOContext& file) : m_file(file) {}

    MovieClaims All(std::int64_t size);

private:
    Box BoxAt(std::int64_t place, std::int64_t end);
    bool IsContainer(const Box& box);
    void Count(const Box& box);
    unsigned Number(const Box& box, std::int64_t offset);
    unsigned MostSamplesOfAChunk(const Box& box);
    void Claim(std::int64_t entries);
    void EndTrack();

    AVIOContext& m_file;
    std::int64_t m_chunks = 0; // of the track so far
    std::int64_t m_samplesOfAChunk = 0;
    MovieClaims m_claims;
};

// A box is cut where the one around it ends, as libavformat cuts it.
Box MovieWalk::BoxAt(std::int64_t place, std::int64_t end)
{
    if (end - place < kHeader)
        return {};
    avio_seek(&m_file, place, SEEK_SET);
    const auto size = avio_rb32(&m_file);
    const auto type = avio_rb32(&m_file);
    if (size == kToTheEnd)
        return {type, place + kHeader, end};
    if (size != kIsLong)
        return size < kHeader ? Box() : Box{type, place + kHeader, std::min(place + size, end)};
    const auto rest = static_cast<std::uint64_t>(end - place);
    const auto length = std::min(avio_rb64(&m_file), rest);
    return length < kLongHeader ? Box()
                                : Box{type, place + kLongHeader, place + static_cast<std::int64_t>(length)};
}

unsigned MovieWalk::Number(const Box& box, std::int64_t offset)
{
    avio_seek(&m_file, box.content + offset, SEEK_SET);
    return avio_rb32(&m_file);
}

bool MovieWalk::IsContainer(const Box& box)
{
    if (Has(kContainers, box.type))
        return true;
    const auto inner = Has(kHidingPlaces, box.type) ? Number(box, 4) : 0;
    return inner == kMovieHeader || inner == kCompressed;
}

unsigned MovieWalk::MostSamplesOfAChunk(const Box& box)
{
    constexpr std::int64_t kRow = 12;
    unsigned most = 0;
    for (std::int64_t row = 8; row + kRow <= box.end - box.content && !avio_feof(&m_file); row += kRow)
        most = std::max(most, Number(box, row + 4));
    return most;
}

void MovieWalk::Claim(std::int64_t entries)
{
    m_claims.entries = std::min(kMostEntries, m_claims.entries + entries);
}

void MovieWalk::EndTrack()
{
    Claim(m_chunks * (m_samplesOfAChunk / kPacketSamples));
    m_chunks = 0;
    m_samplesOfAChunk = 0;
}

void MovieWalk::Count(const Box& box)
{
    constexpr unsigned kEachHasItsOwn = 0xF00; // flags: duration, size, flags or offset of each sample
    if (box.type == kCompressed)
        m_claims.isCompressed = true;
    else if (box.type == kSizes && Number(box, 4) != 0)
        Claim(Number(box, 8));
    else if (box.type == kRun && (Number(box, 0) & kEachHasItsOwn) == 0)
        Claim(Number(box, 4));
    else if (box.type == kChunksOfSamples)
        m_samplesOfAChunk = std::max<std::int64_t>(m_samplesOfAChunk, MostSamplesOfAChunk(box));
    else if (Has(kChunkOffsets, box.type))
        m_chunks = std::max<std::int64_t>(m_chunks, Number(box, 4));
}

MovieClaims MovieWalk::All(std::int64_t size)
{
    std::vector<std::int64_t> ends{size};
    for (std::int64_t place = 0; !ends.empty() && m_file.error == 0 && m_claims.entries < kMostEntries;)
    {
        const auto box = BoxAt(place, ends.back());
        if (box.end == 0) // what is around it goes on behind itself
        {
            place = ends.back();
            ends.pop_back();
            continue;
        }
        if (box.type == kTrack)
            EndTrack();
        const bool isContainer = IsContainer(box);
        if (isContainer)
            ends.push_back(box.end);
        else
            Count(box);
        place = isContainer ? box.content : box.end;
    }
    EndTrack();
    return m_claims;
}

} // namespace

MovieClaims ReadMovieClaims(AVIOContext& file, std::int64_t size)
{
    const auto claims = MovieWalk(file).All(size);
    avio_seek(&file, 0, SEEK_SET);
    return claims;
}

} // namespace Vexlor
