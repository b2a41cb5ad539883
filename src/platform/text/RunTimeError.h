#pragma once

#include <QString>

#include <exception>

// A failure that nobody on the way may catch: the application shows it in a plain box and ends.
class RunTimeError : public std::exception {
public:
    // The numbers that the clerk's helper is used to reading in such a box.
    enum Kind {
        Overflow = 6,
        TypeMismatch = 13,
        FileNotFound = 53,
        FileAccess = 75,
        NoCurrentRecord = 3021,
        ItemNotFound = 3265,
        ConnectionClosed = 3704,
        DatabaseFailure = 3146,
    };

    // `happened` is a sentence for the clerk; `statement` is the failed statement, if one failed.
    RunTimeError(int number, QString happened, QString statement = {});

    int Number() const { return m_number; }
    const QString& Happened() const { return m_happened; }
    const QString& Statement() const { return m_statement; }

    // The whole text of the box: number, what happened, the statement.
    QString Text() const;

    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_happened;
    QString m_statement;
    QByteArray m_what;
};

// What a box says in both tongues: a sentence for the clerk, and under it one for the helper.
QString Sentences(QStringView marathi, const QString& english);
