#pragma once

#include "IVXArtworkImageMgr.h"

#include "tests/artwork/ArtworkBytes.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace Vexlor
{

/// One artwork file in memory and managers of it.
class ArtworkFileTest : public testing::Test
{
protected:
    static std::shared_ptr<const IVXArtworkImageMgr> Open()
    {
        return IVXArtworkImageMgr::MallocArtworkImageMgr("icons", nullptr);
    }
    static std::shared_ptr<IVXArtworkImageMgr> OpenMutable()
    {
        return IVXArtworkImageMgr::MallocArtworkImageMgrMutable("icons", nullptr);
    }

    ScriptedFile& File() { return m_platform.File("icons"); }
    Bytes& FileBytes() { return File().bytes; }
    std::string Log() const { return m_platform.Log(); }

    /// What the file holds as another manager sees it: "identifier:pictures" a group.
    static std::string Outline()
    {
        const auto manager = Open();
        std::string text;
        for (int i = 0; i < manager->ArtworkImageGroupCount(); ++i)
            text += (i ? " | " : "") + std::to_string(manager->FaceIDAt(i)) + ":" +
                    TextOf(manager->GetArtworkImageGroup(i));
        return text;
    }

    /// The last face identifier that this process gave automatically: a new one, of a file of its own.
    static int LastAutomaticFaceID()
    {
        const ScriptedPlatform elsewhere;
        return IVXArtworkImageMgr::MallocArtworkImageMgrMutable("other", nullptr)
            ->AddArtworkImageGroup(GroupOf("any"));
    }

    ScriptedPlatform m_platform;
};

} // namespace Vexlor
