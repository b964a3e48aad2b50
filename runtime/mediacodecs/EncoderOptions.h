#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavutil/dict.h>
}

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Vexlor
{

/// Options that an encoder is opened with, by libavcodec's names for them.
class EncoderOptions final
{
public:
    EncoderOptions() = default;
    EncoderOptions(const EncoderOptions&) = delete;
    EncoderOptions& operator=(const EncoderOptions&) = delete;
    ~EncoderOptions() { av_dict_free(&m_options); }

    /// Adds "name=value:name=value"; FFmpeg's error code when the text is none.
    int Parse(std::string_view text);
    /// Adds an option. One that is there already, and takes a list of options itself, has the value appended.
    void Add(std::string_view name, std::string_view value);
    /// True when the option is there already.
    bool Has(std::string_view name) const;
    /// All of them, by name.
    std::vector<std::pair<std::string, std::string>> All() const;
    /// Opens the encoder; FFmpeg's error code when it does not open, or does not know one of the options.
    int Open(AVCodecContext& context, const AVCodec& encoder);

private:
    AVDictionary* m_options = nullptr;
};

} // namespace Vexlor
