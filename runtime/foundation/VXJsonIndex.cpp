#include "runtime/foundation/VXJsonIndex.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLargePages.h"

#include <simdjson.h>

#include <new>
#include <string>
#include <utility>

namespace Vexlor
{

static_assert(kJsonRoom >= simdjson::SIMDJSON_PADDING);
static_assert(VXJsonIndex::kMostBytes <= simdjson::SIMDJSON_MAXSIZE_BYTES);

namespace
{

// simdjson chooses among its implementations when one is first asked for, and ends the program where memory
// is short then: so one is asked for when the library is loaded.
const std::string s_implementation = simdjson::get_active_implementation()->name();

} // namespace

// The first of simdjson's two stages; the second would copy every name and text.
bool VXJsonIndex::Read(std::string_view text)
{
    simdjson::dom::parser parser;
    if (parser.allocate(text.size(), 1) != simdjson::SUCCESS)
        throw std::bad_alloc();
    auto& finder = *parser.implementation;
    UseLargePages(finder.structural_indexes.get(), text.size() * sizeof(std::uint32_t));
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    if (finder.stage1(bytes, text.size(), simdjson::stage1_mode::regular) != simdjson::SUCCESS)
        return false;
    m_text = text.data();
    m_size = text.size();
    m_count = finder.n_structural_indexes;
    m_offsets = std::move(finder.structural_indexes);
    m_offsets[m_count] = static_cast<std::uint32_t>(text.size());
    return true;
}

} // namespace Vexlor
