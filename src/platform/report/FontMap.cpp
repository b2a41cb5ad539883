#include "platform/report/FontMap.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <unistd.h>

#include <thread>

namespace {

// How long to wait for a new thread to set its name.
constexpr int PatienceMs = 1000;

QByteArray NameOf(const QString& thread)
{
    QFile name(QStringLiteral("/proc/self/task/") + thread + QStringLiteral("/comm"));
    return name.open(QFile::ReadOnly) ? name.readAll() : QByteArray();
}

// Pango gives nobody access to its threads, so they are looked for among all threads of the process.
bool RunsThread(const QByteArray& name)
{
    const QString own = QString::number(gettid());
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (thread != own && NameOf(thread).startsWith(name))
            return true;
    }
    return false;
}

// A new thread has the name of the thread that started it, until it sets its own.
void WaitForSearches()
{
    const QByteArray own = NameOf(QString::number(gettid()));
    const QDeadlineTimer patience(PatienceMs);
    while (RunsThread("[pango]") || (!patience.hasExpired() && RunsThread(own)))
        std::this_thread::yield();
}

}

FontMap::FontMap()
    : m_map(pango_cairo_font_map_new())
    , m_hasWindows(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
{
    pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(m_map)); // waits until the configuration has been read
}

FontMap::~FontMap()
{
    WaitForSearches();
    g_object_unref(m_map);
    if (!m_hasWindows) // otherwise Qt frees it when the application ends
        FcConfigSetCurrent(nullptr);
}

bool FontMap::Has(const QString& family) const
{
    FcPattern* const wanted = FcPatternCreate();
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.toUtf8().constData()));
    FcObjectSet* const told = FcObjectSetBuild(FC_FAMILY, nullptr);
    FcFontSet* const found = FcFontList(pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(m_map)), wanted, told);
    const bool isThere = found && found->nfont > 0;
    if (found)
        FcFontSetDestroy(found);
    FcObjectSetDestroy(told);
    FcPatternDestroy(wanted);
    return isThere;
}

std::shared_ptr<FontMap> FontMap::Current()
{
    static std::shared_ptr<FontMap> map;
    if (!map) {
        map = std::make_shared<FontMap>();
        qAddPostRoutine([] { map.reset(); });
    }
    return map;
}
