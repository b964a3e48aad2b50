#include "runtime/mediacodecs/StreamLabels.h"

#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/LevelTable.h"
#include "runtime/mediacodecs/ProfileTable.h"
#include "tests/encode/Streams.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

constexpr int kUnknown = -99;

/// A stream's labels and what becomes of them: "High, 4", "-" for the encoder's choice.
struct LabelCase
{
    const char* name;
    int codecID;
    int format;
    int profile;
    int level;
    const char* labels;
    std::size_t changes;
};

constexpr LabelCase kLabels[] = {
    {"NoneAskedFor", VXCodecID_H264, VXPixFormat_YUV420P, kUnknown, kUnknown, "-, -", 0},
    {"BothHold", VXCodecID_H264, VXPixFormat_YUV420P, 77, 41, "Main, 4.1", 0},
    {"ProfileWithoutThatChroma", VXCodecID_H264, kPixFormatYUV422P, 66, kUnknown, "High 4:2:2, -", 1},
    {"ProfileWithoutThatDepth", VXCodecID_H264, kPixFormatYUV420P10, 100, kUnknown, "High 10, -", 1},
    {"ProfileOfMoreThanTheFormat", VXCodecID_HEVC, VXPixFormat_YUV420P, 2, kUnknown, "Main 10, -", 0},
    {"LevelTooLow", VXCodecID_H264, VXPixFormat_YUV420P, 100, 10, "High, 3", 1},
    {"HighTierIsOfferedToHighTierOnly", VXCodecID_HEVC, VXPixFormat_YUV420P, 1, 30, "Main, 3", 1},
    {"TierThatNoEncoderMakes", VXCodecID_AV1, VXPixFormat_YUV420P, 0, 1012, "Main, 3.0", 1},
    {"LevelOfMPEG2NeedsAProfile", VXCodecID_MPEG2, VXPixFormat_YUV420P, kUnknown, 8, "Main, Main", 0},
    {"AndOneThatHoldsTheFormat", VXCodecID_MPEG2, kPixFormatYUV422P, kUnknown, 8, "4:2:2, Main", 0},
    {"LevelOfMPEG4IsOneOfSimple", VXCodecID_MPEG4, VXPixFormat_YUV420P, kUnknown, 5, "Simple, 5", 0},
    {"AndOfDivXToo", VXCodecID_DIVX, VXPixFormat_YUV420P, kUnknown, 3, "Simple, 5", 1},
    {"LevelThatSimpleLacks", VXCodecID_MPEG4, VXPixFormat_YUV420P, kUnknown, 7, "Simple, 5", 1},
    {"DNxHRNeedsAProfile", VXCodecID_DNxHR, kPixFormatYUV422P, kUnknown, kUnknown, "LB, -", 0},
    {"AndOneOfTenBits", VXCodecID_DNxHR, kPixFormatYUV422P10, kUnknown, kUnknown, "HQX, -", 0},
    {"NumberThatIsNotKnown", VXCodecID_H264, VXPixFormat_YUV420P, 12345, 12345, "-, -", 0},
    {"CodecWithoutLabels", VXCodecID_VP8, VXPixFormat_YUV420P, 1, 1, "-, -", 0},
};

class Labels : public testing::TestWithParam<LabelCase>
{
protected:
    Labels()
    {
        const auto& test = GetParam();
        const auto stream = Picture(test.codecID);
        stream->SetProfile(test.profile);
        stream->SetLevel(test.level);
        labels = FittingLabels(*CapabilitiesOf(test.codecID), *stream, test.format);
    }

    template <class Row>
    static std::string NameOf(const Row* row)
    {
        return row ? std::string(row->name) : "-";
    }

    StreamLabels labels;
};

TEST_P(Labels, AreTheNearestThatHoldTheStream)
{
    EXPECT_EQ(GetParam().labels, NameOf(labels.profile) + ", " + NameOf(labels.level));
}

TEST_P(Labels, TellWhatGaveWay) { EXPECT_EQ(GetParam().changes, labels.changes.size()); }

INSTANTIATE_TEST_SUITE_P(Streams, Labels, testing::ValuesIn(kLabels),
                         [](const auto& test) { return test.param.name; });

/// The profiles that the four grades of a codec come to.
struct GradeCase
{
    const char* name;
    int codecID;
    int format;
    const char* profiles;
};

constexpr GradeCase kGradesOfProfiles[] = {
    {"ProRes422", VXCodecID_ProRes, kPixFormatYUV422P10, "Proxy LT Standard HQ "},
    {"ProRes444", VXCodecID_ProRes, kPixFormatYUV444P10, "4444 4444 4444 4444 XQ "},
    {"ProResAlpha", VXCodecID_ProRes, kPixFormatYUVA444P10, "4444 4444 4444 4444 XQ "},
    {"DNxHR422", VXCodecID_DNxHR, kPixFormatYUV422P, "LB SQ HQ HQ "},
    {"DNxHRTenBits", VXCodecID_DNxHR, kPixFormatYUV422P10, "HQX HQX HQX HQX "},
    {"DNxHR444", VXCodecID_DNxHR, kPixFormatYUV444P10, "444 444 444 444 "},
};

class ProfilesOfGrades : public testing::TestWithParam<GradeCase>
{
};

TEST_P(ProfilesOfGrades, FollowTheBitrateWhereTheProfileIsOpen)
{
    const auto& test = GetParam();
    const auto& codec = *CapabilitiesOf(test.codecID);
    const auto stream = Picture(test.codecID);
    std::string profiles;
    for (const int grade : {0, 1, 2, 3})
    {
        const auto picture = PictureOf(*stream, test.format);
        stream->SetBitrate(VideoBitrate(codec, picture, IVXCodecs::QualityLevel{grade}));
        profiles += std::string(FittingLabels(codec, *stream, test.format).profile->name) + ' ';
    }
    EXPECT_EQ(test.profiles, profiles);
}

INSTANTIATE_TEST_SUITE_P(Codecs, ProfilesOfGrades, testing::ValuesIn(kGradesOfProfiles),
                         [](const auto& test) { return test.param.name; });

TEST(StreamLabels, AProfileIsTheFirstThatHoldsTheFormatWhereNoBitrateIsTold)
{
    const auto stream = Picture(VXCodecID_ProRes);
    stream->SetBitrate(0);
    EXPECT_EQ("Standard",
              FittingLabels(*CapabilitiesOf(VXCodecID_ProRes), *stream, kPixFormatYUV422P10).profile->name);
}

TEST(StreamLabels, AProfileThatIsAskedForStaysWhateverTheBitrate)
{
    const auto stream = Picture(VXCodecID_ProRes);
    stream->SetProfile(3);
    EXPECT_EQ("HQ",
              FittingLabels(*CapabilitiesOf(VXCodecID_ProRes), *stream, kPixFormatYUV422P10).profile->name);
}

TEST(StreamLabels, LevelsOfVP9CountTheAverageBitrateAndThoseOfH264TheHighest)
{
    const auto levelOf = [](int codecID, int level)
    {
        const auto stream = Picture(codecID); // 4 Mb/s
        stream->SetLevel(level);
        stream->SetMaxBitrate(40'000'000);
        return std::string(FittingLabels(*CapabilitiesOf(codecID), *stream, VXPixFormat_YUV420P).level->name);
    };
    EXPECT_EQ("3", levelOf(VXCodecID_VP9, 30));
    EXPECT_EQ("4.1", levelOf(VXCodecID_H264, 30));
}

TEST(StreamLabels, LevelThatNoEncoderMakesIsSaidToBeOne)
{
    const auto stream = Picture(VXCodecID_AV1);
    stream->SetLevel(1008);
    const auto labels = FittingLabels(*CapabilitiesOf(VXCodecID_AV1), *stream, VXPixFormat_YUV420P);
    EXPECT_EQ("level 4.0 High is not made; 3.0 stands in", labels.changes.at(0));
}

TEST(StreamLabels, ChangeNamesBothLabelsAndTheCause)
{
    const auto stream = Picture(VXCodecID_H264);
    stream->SetProfile(66);
    const auto labels = FittingLabels(*CapabilitiesOf(VXCodecID_H264), *stream, kPixFormatYUV422P);
    EXPECT_EQ("profile Baseline cannot hold YUV 4:2:2; High 4:2:2 stands in", labels.changes.at(0));
}

StreamLabels LabelsOfHEv2(std::uint64_t layout)
{
    const auto sound = Sound(VXCodecID_HEAAC);
    sound->SetProfile(29);
    sound->SetChannelLayout(layout);
    return FittingLabels(*CapabilitiesOf(VXCodecID_HEAAC), *sound, VXPixFormat_None);
}

TEST(StreamLabels, ParametricStereoIsOfStereoAlone)
{
    EXPECT_EQ(29, LabelsOfHEv2(kStereo).profile->number);
    EXPECT_EQ(0U, LabelsOfHEv2(kStereo).changes.size());
}

TEST(StreamLabels, ParametricStereoGivesWayToTheOtherLayouts)
{
    EXPECT_EQ(5, LabelsOfHEv2(kMono).profile->number);
    EXPECT_EQ("profile HE v2 cannot hold 5.1; HE stands in", LabelsOfHEv2(kLayout51).changes.at(0));
}

} // namespace

} // namespace Vexlor
