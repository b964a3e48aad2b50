#include "IVXArtworkImageGroup.h"
#include "IVXData.h"

#include <algorithm>
#include <cstdlib>
#include <span>

// A group that was read from any bytes writes a blob that reads back as the same group, and the blob is in
// proportion to those bytes: a picture adds to its 8 bytes of key and length at most the 8 of its own empty
// form.

namespace
{

using namespace Vexlor;

std::shared_ptr<IVXData> Rewritten(const std::shared_ptr<const IVXData>& blob)
{
    const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    group->FromData(blob);
    return group->ToData();
}

std::span<const std::uint8_t> Content(const IVXData& data) { return {data.Bytes(), data.Size()}; }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto blob = IVXData::MallocData(static_cast<std::uint32_t>(size));
    std::copy_n(bytes, size, blob->Bytes());
    const auto once = Rewritten(blob);
    const auto twice = Rewritten(once);
    if (!std::ranges::equal(Content(*once), Content(*twice)) || once->Size() > 2 * size + 7)
        std::abort();
    return 0;
}
