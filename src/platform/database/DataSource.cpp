#include "platform/database/DataSource.h"

#include <QHash>

namespace {

QHash<QString, QString>& Files()
{
    static QHash<QString, QString> files;
    return files;
}

}

void DataSource::Register(const QString& name, const QString& file)
{
    Files().insert(name.toLower(), file);
}

QString DataSource::File(const QString& name)
{
    return Files().value(name.toLower());
}
