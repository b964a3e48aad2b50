#include "EncoderOptions.h"

namespace Vexlor
{

int EncoderOptions::Parse(std::string_view text)
{
    AVDictionary* parsed = nullptr;
    const int error = av_dict_parse_string(&parsed, std::string(text).c_str(), "=", ":", 0);
    const AVDictionaryEntry* each = nullptr;
    while ((each = av_dict_get(parsed, "", each, AV_DICT_IGNORE_SUFFIX)))
        Add(each->key, each->value);
    av_dict_free(&parsed);
    return error;
}

void EncoderOptions::Add(std::string_view name, std::string_view value)
{
    const std::string key(name);
    const auto* before = av_dict_get(m_options, key.c_str(), nullptr, 0);
    const auto joined = before ? std::string(before->value) + ':' + std::string(value) : std::string(value);
    av_dict_set(&m_options, key.c_str(), joined.c_str(), 0);
}

bool EncoderOptions::Has(std::string_view name) const
{
    return av_dict_get(m_options, std::string(name).c_str(), nullptr, 0) != nullptr;
}

std::vector<std::pair<std::string, std::string>> EncoderOptions::All() const
{
    std::vector<std::pair<std::string, std::string>> all;
    const AVDictionaryEntry* each = nullptr;
    while ((each = av_dict_get(m_options, "", each, AV_DICT_IGNORE_SUFFIX)))
        all.emplace_back(each->key, each->value);
    return all;
}

int EncoderOptions::Open(AVCodecContext& context, const AVCodec& encoder)
{
    const int error = avcodec_open2(&context, &encoder, &m_options);
    return error >= 0 && av_dict_count(m_options) > 0 ? AVERROR_OPTION_NOT_FOUND : error;
}

} // namespace Vexlor
