#pragma once

#include <string>
#include <string_view>

namespace Vexlor::Media
{

/// The path of a short media file, which is made with the ffmpeg program when it is asked for the first time
/// and kept in the build folder until its recipe changes. Several programs may ask at once. Throws
/// std::runtime_error, with ffmpeg's words, when it cannot be made.
///
/// | name           | what it holds                                                                  |
/// |----------------|--------------------------------------------------------------------------------|
/// | film.mp4       | H.264 1920x1080 at 30 fps, AAC stereo 48 kHz                                   |
/// | film.mkv       | H.264 640x360 at 24000/1001 fps, Opus stereo; no stream tells its bitrate      |
/// | film.webm      | VP9 320x180 at 25 fps, Opus stereo                                             |
/// | film.avi       | MPEG-4 320x240 at 25 fps, tag XVID, MP3 stereo 44.1 kHz                        |
/// | film.ts        | H.264 320x180 at 25 fps, AAC stereo, in a transport stream                     |
/// | anamorphic.mp4 | H.264 720x576 at 25 fps, sample aspect 64:45                                   |
/// | rotated.mp4    | H.264 1920x1080 at 30 fps with a display matrix of a quarter turn, AAC mono    |
/// | turned.mp4     | as anamorphic.mp4 and with a quarter turn                                      |
/// | tenbit.mp4     | HEVC Main 10 640x360 at 25 fps                                                 |
/// | surround.mp4   | H.264 320x180 at 25 fps, AAC 5.1 48 kHz                                        |
/// | silent.mp4     | H.264 320x180 at 25 fps, no sound                                              |
/// | uneven.mp4     | H.264 320x180: 10 pictures at 30 fps, then 10 at 15 fps                        |
/// | animation.mov  | QuickTime Animation 640x360 at 25 fps, PCM; we have no identifier for it       |
/// | music.mp3      | MP3 stereo 44.1 kHz, 128 kb/s, with a cover picture                            |
/// | music.flac     | FLAC stereo 44.1 kHz                                                           |
/// | count.au       | 16-bit PCM of six channels; the container tells their number only              |
/// | subtitles.mkv  | subtitles, nothing else                                                        |
/// | picture.png    | one picture                                                                    |
/// | quarters.mp4   | H.264 160x120 at 10 fps: red and green above blue and white                       |
/// | quarters-turned.mp4 | as quarters.mp4, with a display matrix of a quarter turn                  |
/// | quarters-wide.mp4   | as quarters.mp4, sample aspect 2:1                                        |
/// | streamed.mp4   | as silent.mp4, but the description comes before the pictures                   |
std::string Clip(std::string_view name);

/// A folder that is emptied and removed with the object; made beside the clips.
class ScratchFolder final
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The path of that name in the folder; nothing is made there.
    std::string Path(std::string_view name) const;
    /// Writes a file into the folder and answers its path.
    std::string Write(std::string_view name, std::string_view bytes) const;

private:
    std::string m_path;
};

/// All bytes of a file. Throws std::runtime_error when it cannot be read.
std::string BytesOf(const std::string& path);

} // namespace Vexlor::Media
