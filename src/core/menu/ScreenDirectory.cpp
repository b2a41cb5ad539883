#include "core/menu/ScreenDirectory.h"

#include "platform/forms/Screen.h"

#include <QHash>

namespace {

QHash<QString, ScreenDirectory::Maker>& Makers()
{
    static QHash<QString, ScreenDirectory::Maker> makers;
    return makers;
}

}

void ScreenDirectory::Add(const QString& name, const Maker& maker)
{
    Makers().insert(name, maker);
}

QStringList ScreenDirectory::Names()
{
    QStringList names;
    for (auto maker = Makers().cbegin(); maker != Makers().cend(); ++maker)
        if (maker.value())
            names.append(maker.key());
    names.sort();
    return names;
}

void ScreenDirectory::Open(const QString& name, const Caption& title)
{
    const Maker maker = Makers().value(name);
    Q_ASSERT_X(maker, "ScreenDirectory", qUtf8Printable(name));
    const std::unique_ptr<Screen> screen = maker();
    if (!title.IsEmpty())
        screen->SetTitle(title);
    screen->ShowModal();
}
