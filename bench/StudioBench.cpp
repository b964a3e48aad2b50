// What the window program takes for a document of very many presets:   vxbench-studio [DOCUMENT]
// Without one it makes one of 20,000 presets of the catalogue. Time on the clock, the processor's, and of
// that the kernel's.

#include "apps/studio/tree/TreePane.h"
#include "apps/studio/window/FileActions.h"
#include "apps/studio/window/StudioWindow.h"
#include "catalog/DefaultTree.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

constexpr int kPresets = 20'000;
constexpr int kPresetsACategory = 200;

void Collect(IVXFormatNode& node, std::vector<std::shared_ptr<IVXFormatPreset>>& presets)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        presets.push_back(node.GetFormatPreset(i));
    for (const auto& child : node.GetChildList())
        Collect(*child, presets);
}

std::string LargeDocument()
{
    std::vector<std::shared_ptr<IVXFormatPreset>> originals;
    Collect(*Catalog::DefaultTree(), originals);
    const auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    std::shared_ptr<IVXFormatNode> category;
    for (int i = 0; i < kPresets; ++i)
    {
        if (i % kPresetsACategory == 0)
        {
            category = IVXFormatNode::MallocFormatNode(root);
            category->SetName("Category " + std::to_string(i / kPresetsACategory));
        }
        auto preset = originals[static_cast<std::size_t>(i) % originals.size()]->Clone();
        preset->SetName(preset->Name() + ' ' + std::to_string(i));
        category->AddFormatPreset(std::move(preset));
    }
    return JsonText(*root->JsonValue());
}

QString LargeFile(const QTemporaryDir& folder)
{
    QFile file(folder.filePath("presets.json"));
    const auto text = LargeDocument();
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), static_cast<qint64>(text.size())) < 0)
        std::fprintf(stderr, "%s\n", qPrintable(file.errorString()));
    return file.fileName();
}

double Milliseconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Milliseconds since the program began: on the clock, of the processor, and of those the kernel's.
struct Times
{
    double clock = 0;
    double processor = 0;
    double kernel = 0;

    static Times Now()
    {
        static const auto s_begin = std::chrono::steady_clock::now();
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        const auto kernel = Milliseconds(usage.ru_stime);
        const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - s_begin;
        return {passed.count(), Milliseconds(usage.ru_utime) + kernel, kernel};
    }
};

/// What has passed since it was made.
class Clock
{
public:
    Times Passed() const
    {
        const auto now = Times::Now();
        return {now.clock - m_begin.clock, now.processor - m_begin.processor, now.kernel - m_begin.kernel};
    }

private:
    Times m_begin = Times::Now();
};

void Print(const char* what, const Clock& clock, int times = 1)
{
    const auto passed = clock.Passed();
    std::printf("%-34s %8.1f ms, processor %8.1f ms, kernel %8.1f ms\n", what, passed.clock / times,
                passed.processor / times, passed.kernel / times);
}

/// Until all that is to be laid out and painted is.
void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void Open(StudioWindow& window, const QString& path)
{
    bool isOpen = false;
    auto& files = window.Files().Files();
    QObject::connect(&files, &DocumentFiles::Opened, &window, [&isOpen] { isOpen = true; });
    QObject::connect(&files, &DocumentFiles::Failed, &window,
                     [](const QString& reason)
                     { std::fprintf(stderr, "%s\n", qPrintable(reason)), std::exit(1); });
    const Clock clock;
    window.Files().Open(path);
    while (!isOpen)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window.Tree().View().viewport()->repaint();
    Print("open, until the tree is painted", clock);
}

void PageThrough(QTreeView& view)
{
    const Clock expanding;
    view.expandAll();
    Settle();
    Print("show all rows", expanding);
    auto& bar = *view.verticalScrollBar();
    const Clock clock;
    double longest = 0;
    int pages = 0;
    for (bar.setValue(0); bar.value() < bar.maximum(); ++pages)
    {
        const Clock page;
        bar.setValue(bar.value() + bar.pageStep());
        view.viewport()->repaint();
        longest = std::max(longest, page.Passed().clock);
    }
    Print("a page, of all in turn", clock, pages);
    std::printf("%-34s %8.1f ms, of %d\n", "the slowest page", longest, pages);
}

void Search(StudioWindow& window)
{
    auto& field = *window.Tree().findChild<QLineEdit*>("search");
    for (const auto* text : {"p", "ph", "pho", "phone", "phone 1", "phone 12", ""})
    {
        const Clock clock;
        field.setText(text);
        Settle();
        window.Tree().View().viewport()->repaint();
        Print(qPrintable(QString("search \"%1\"").arg(text)), clock);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8()); // what the user has set stays as it is
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    const QApplication application(argc, argv);
    const auto path = argc > 1 ? QString::fromLocal8Bit(argv[1]) : LargeFile(folder);
    StudioWindow window;
    window.resize(1280, 800);
    window.show();
    Settle();
    Open(window, path);
    PageThrough(window.Tree().View());
    Search(window);
    return 0;
}
