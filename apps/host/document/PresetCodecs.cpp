#include "PresetCodecs.h"

#include "apps/host/Failure.h"
#include "apps/host/Quantities.h"
#include "apps/host/Text.h"

#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFormat.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <memory>

namespace Vexlor::Tool
{

namespace
{

using Codecs = std::vector<std::shared_ptr<IVXCodecPreset>>;

/// The operations of one of the two lists.
class CodecList
{
public:
    CodecList(IVXFormatPreset& preset, StreamKind kind)
        : m_preset(preset), m_isVideo(kind == StreamKind::Video)
    {
    }

    Codecs Entries() const { return m_isVideo ? m_preset.VideoCodecPresets() : m_preset.AudioCodecPresets(); }
    std::shared_ptr<IVXCodecPreset> Current() const
    {
        return m_isVideo ? m_preset.CurrentVideoCodec() : m_preset.CurrentAudioCodec();
    }
    void Choose(int index)
    {
        m_isVideo ? m_preset.SetIndexForVideoCodecPresets(index)
                  : m_preset.SetIndexForAudioCodecPresets(index);
    }
    void Add(int codecID)
    {
        m_isVideo ? m_preset.AddVideoCodecPreset(codecID) : m_preset.AddAudioCodecPreset(codecID);
    }
    void Append(const std::shared_ptr<IVXCodecPreset>& codec)
    {
        const auto count = static_cast<int>(Entries().size());
        m_isVideo ? m_preset.InsertVideoCodecPreset(codec, count)
                  : m_preset.InsertAudioCodecPreset(codec, count);
    }
    void Clear()
    {
        for (auto count = static_cast<int>(Entries().size()); count > 0; --count)
            m_isVideo ? m_preset.RemoveVideoCodecPreset(0) : m_preset.RemoveAudioCodecPreset(0);
    }
    /// The codecs that the container takes.
    std::vector<int> Taken() const
    {
        const auto format = m_preset.GetFormat();
        if (!format)
            return {};
        return m_isVideo ? format->VideoCodecIDs() : format->AudioCodecIDs();
    }
    const char* Name() const { return m_isVideo ? "video" : "audio"; }

private:
    IVXFormatPreset& m_preset;
    bool m_isVideo;
};

bool IsMeant(int codecID, const std::string& name, std::string_view text)
{
    return Squeezed(name) == Squeezed(text) || IntegerOf(text) == codecID;
}

std::string NameOf(int codecID) { return IVXCodecs::DefaultCodecName(codecID, true); }

std::vector<std::string> NamesOf(const CodecList& list)
{
    std::vector<std::string> names;
    for (const auto& codec : list.Entries())
        names.push_back(codec->Name());
    for (const int codecID : list.Taken())
        if (std::ranges::find(names, NameOf(codecID)) == names.end())
            names.push_back(NameOf(codecID));
    return names;
}

/// The codec that the text means, as the list has it or, else, as the container takes it.
std::shared_ptr<IVXCodecPreset> Find(const CodecList& list, const Codecs& entries, std::string_view text)
{
    for (const auto& codec : entries)
        if (IsMeant(codec->CodecID(), codec->Name(), text))
            return codec;
    for (const int codecID : list.Taken())
        if (IsMeant(codecID, NameOf(codecID), text))
            return IVXCodecPreset::MallocCodecPreset(codecID);
    throw Failure(Quoted(text) + " is none of " + Joined(NamesOf(list), ", "));
}

Codecs Named(const CodecList& list, const std::string& text)
{
    const auto entries = list.Entries();
    Codecs codecs;
    for (std::size_t begin = 0; begin <= text.size();)
    {
        const auto end = std::min(text.find(',', begin), text.size());
        const auto codec = Find(list, entries, std::string_view(text).substr(begin, end - begin));
        if (std::ranges::find(codecs, codec->CodecID(), &IVXCodecPreset::CodecID) == codecs.end())
            codecs.push_back(codec);
        begin = end + 1;
    }
    return codecs;
}

std::string AllOf(const CodecList& list)
{
    std::vector<std::string> names;
    for (const int codecID : list.Taken())
        names.push_back(NameOf(codecID));
    return Joined(names, ",");
}

} // namespace

std::vector<std::string> CodecChoices(IVXFormatPreset& preset, StreamKind kind)
{
    return NamesOf(CodecList(preset, kind));
}

std::string ChooseCodec(IVXFormatPreset& preset, StreamKind kind, std::string_view text, bool& isAdded)
{
    CodecList list(preset, kind);
    const auto entries = list.Entries();
    const auto codec = Find(list, entries, text);
    const auto found = std::ranges::find(entries, codec);
    isAdded = found == entries.end();
    if (isAdded)
        list.Append(codec);
    list.Choose(static_cast<int>(found - entries.begin()));
    return codec->Name();
}

std::string SetCodecs(IVXFormatPreset& preset, StreamKind kind, const std::string& text)
{
    CodecList list(preset, kind);
    const auto folded = Squeezed(text);
    const auto names = folded == "all" ? AllOf(list) : folded == "none" ? std::string() : text;
    const auto codecs = names.empty() && !folded.empty() ? Codecs() : Named(list, names);
    list.Clear();
    std::vector<std::string> shown;
    for (const auto& codec : codecs)
    {
        list.Append(codec);
        shown.push_back(codec->Name());
    }
    list.Choose(0);
    return shown.empty() ? "none" : Joined(shown, ", ");
}

IVXCodecPreset& ChosenCodec(IVXFormatPreset& preset, StreamKind kind)
{
    const CodecList list(preset, kind);
    const auto codec = list.Current();
    if (codec && !codec->IsAutoValue())
        return *codec;
    const std::string name = list.Name();
    throw Failure("no " + name + " codec is chosen; set " + name + "-codec first, to one of " +
                  Joined(NamesOf(list), ", "));
}

} // namespace Vexlor::Tool
