#include "bench/FirstPage.h"

#include "bench/CounterPlay.h"
#include "core/state/AppState.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

using Clock = std::chrono::steady_clock;

// When the page of the preview is painted for the first time. It lives on the program's thread.
class PageWatch final : public QObject {
public:
    PageWatch() { qApp->installEventFilter(this); }
    std::optional<Clock::time_point> Painted;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !Painted && object->parent()
            && object->parent()->objectName() == u"picPage")
            QMetaObject::invokeMethod(
                this, [this] { Painted = Clock::now(); }, Qt::QueuedConnection);
        return false;
    }
};

double Seconds(Clock::time_point from, Clock::time_point to)
{
    return std::chrono::duration<double>(to - from).count();
}

}

FirstPage::FirstPage(const char* screen, const QString& mode, const QString& keys)
    : m_engine(TemplateReport::Engine())
    , m_screen(screen)
    , m_mode(mode)
    , m_keys(keys)
{
    TemplateReport::Engine() = [this](const TemplateReport::Run& run) {
        m_staged = Clock::now();
        m_engine(run);
    };
}

FirstPage::~FirstPage()
{
    TemplateReport::Engine() = m_engine;
}

FirstPage::Times FirstPage::ShowPage()
{
    gAppState.gReportMode = m_mode;
    std::unique_ptr<PageWatch> page;
    Clock::time_point pressed;
    Clock::time_point painted;
    Play(m_screen, [&](Clerk& clerk) {
        clerk.Do([&] { page = std::make_unique<PageWatch>(); });
        clerk.Type(m_keys);
        pressed = Clock::now();
        clerk.Type(QStringLiteral("%i"));
        for (int turns = 0; turns < 1000 && !page->Painted; ++turns)
            clerk.Do([] {});
        clerk.Do([&] {
            Require(page->Painted.has_value(), "The first page is painted.");
            painted = *page->Painted;
            page.reset();
        });
        clerk.Type(QStringLiteral("{ESC}"));
    });
    return {Seconds(pressed, m_staged), Seconds(m_staged, painted)};
}
