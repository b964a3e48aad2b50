// A converter in sixty lines: loads a preset document, walks its tree, shows what a media file would become
// in each preset, and draws an icon.     host DOCUMENT MEDIA ARTWORK PNG
#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"
#include "IVXCodecParameter.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>

#include <cstdio>

using namespace Vexlor;

namespace
{

void PrintOutput(const IVXFormatPreset& preset, const std::shared_ptr<const IVXFormatParameter>& source)
{
    const auto output = preset.MatchForSource(source);
    std::printf("  %s:", preset.Name().c_str());
    if (const auto video = output->GetVideoCodecParameter())
        std::printf(" %d x %d, %d kb/s", video->GetWidth(), video->GetHeight(), video->GetBitrate() / 1000);
    if (const auto audio = output->GetAudioCodecParameter())
        std::printf(" + %d Hz, %d kb/s", audio->GetSampleRate(), audio->GetBitrate() / 1000);
    std::printf("\n");
}

void PrintNode(const IVXFormatNode& node, const std::shared_ptr<const IVXFormatParameter>& source)
{
    std::printf("%s\n", node.Name().c_str());
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        PrintOutput(*node.GetFormatPreset(i), source);
    for (const auto& child : node.GetChildList())
        PrintNode(*child, source);
}

bool DrawIcon(const char* artwork, int faceID, const char* png)
{
    const auto group =
        IVXArtworkImageMgr::MallocArtworkImageMgr(artwork, nullptr)->GetArtworkImageGroupByID(faceID);
    return group && group->ToIcon().pixmap(64).save(png);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    std::string error;
    if (argc != 5)
        return 2;
    const auto document = ReadJsonFile(argv[1], &error);
    if (!document)
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    const auto media = ReadMediaFile(argv[2]);
    if (!media.parameter)
        return std::fprintf(stderr, "%s\n", media.error.c_str()), 1;
    PrintNode(*IVXFormatNode::MallocFormatNode(document), media.parameter);
    return DrawIcon(argv[3], IVXArtworkImageMgr::FormatFaceIDMP4, argv[4]) ? 0 : 1;
}
