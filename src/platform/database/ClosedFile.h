#pragma once

#include "platform/database/KeyedFile.h"

#include <QDate>
#include <QMap>
#include <QString>

#include <memory>

// A database file that nobody has open, such as a backup. It is looked into without changing it or making
// anything beside it; a log beside it isn't read.
class ClosedFile {
public:
    // Opens it with its password. A file that is missing, unreadable, cut short or no database, and one with
    // another password, are different errors; each names the file, by `shown` if that is given.
    ClosedFile(const QString& file, const QString& password, const QString& shown = {});

    // Reads every page. Damage is an error that names the tables.
    void RequireSound() const;

    // How many rows each table has.
    QMap<QString, qint64> Rows() const;

    // The newest day of a date column; not valid if there is none.
    QDate NewestDay(const QString& table, const QString& column) const;

private:
    QString m_file;
    QString m_password;
    QString m_shown;
    std::unique_ptr<KeyedFile> m_opened;
};
