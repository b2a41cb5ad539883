#include "FontMap.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <thread>

namespace {

// The engine lends nobody its threads, so that they can only be looked for among those of the process.
bool IsSearching()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name(threads.filePath(thread + u"/comm"));
        if (name.open(QFile::ReadOnly) && name.readAll().startsWith("[pango]"))
            return true;
    }
    return false;
}

}

FontMap::FontMap()
    : m_map(pango_cairo_font_map_new())
    , m_hasWindows(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
{
    pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(m_map)); // which waits until it is read
}

FontMap::~FontMap()
{
    while (IsSearching())
        std::this_thread::yield();
    g_object_unref(m_map);
    if (!m_hasWindows) // Qt gives the list behind the map back with its last window
        FcConfigSetCurrent(nullptr);
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
