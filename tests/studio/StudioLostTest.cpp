#include "StudioWindowFixture.h"

#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/window/StartOptions.h"

#include "IVXFormatNode.h"

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What a window offers of programs that did not end in order.
class StudioLostTest : public StudioWindowTest
{
protected:
    /// What is left of the document as it is by a program that does not end in order.
    void Crash(const QString& name)
    {
        QSignalSpy kept(&window->Lost(), &Recovery::Kept);
        window->Lost().Keep();
        ASSERT_TRUE(kept.wait(kPatience));
        const QDir recovery(Recovery::Folder());
        for (const auto& copy : recovery.entryInfoList({"*-*.json", "*-*.path", "*-*.note"}))
            QFile::copy(copy.filePath(), recovery.filePath(name + '.' + copy.suffix()));
    }
    bool IsOffered() { return The<QWidget>("lostOffer").isVisible(); }
    void Press(const char* text)
    {
        QCoreApplication::processEvents(); // or what was offered just now is not shown yet
        for (auto* button : The<QWidget>("lostOffer").findChildren<QPushButton*>())
            if (button->isVisible() && button->text() == text)
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << text;
    }
};

TEST_F(StudioLostTest, OffersOneCrashAfterTheOther)
{
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Mine");
    for (const auto* name : {"first", "second", "third"})
        Crash(name);
    window->Document().Undo().undo();
    window->Start({});
    Press("Discard");
    ASSERT_TRUE(IsOffered());
    Press("Restore");
    ASSERT_TRUE(QTest::qWaitFor([this] { return IsOffered(); }, kPatience));
    EXPECT_TRUE(window->Document().Root()->FindChild("Mine"));
    Press("Discard");
    EXPECT_FALSE(IsOffered());
}

TEST_F(StudioLostTest, OffersACrashAgainWhenNothingIsToBeLostForIt)
{
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Mine");
    Crash("crashed");
    window->Start({});
    AnswerNext(QMessageBox::Cancel);
    Press("Restore");
    EXPECT_TRUE(IsOffered());
}

TEST_F(StudioLostTest, OffersACrashAgainThatCannotBeRead)
{
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Mine");
    Crash("crashed");
    window->Document().Undo().undo();
    QFile copy(Recovery::Folder() + "/crashed.json");
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    copy.write("{");
    copy.close();
    window->Start({});
    Press("Restore");
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsOffered(); }, kPatience));
}

} // namespace
