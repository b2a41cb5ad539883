#pragma once

#include <QString>

#include <exception>

// A failure that ends the program. Nobody catches it on the way; the application shows it in a plain box.
class RunTimeError : public std::exception {
public:
    // The numbers that these boxes show, which the people who support the clerk know.
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

    // `happened` is a sentence for the clerk; `statement` is the statement that failed, or empty.
    RunTimeError(int number, QString happened, QString statement = {});

    int Number() const { return m_number; }
    const QString& Happened() const { return m_happened; }
    const QString& Statement() const { return m_statement; }

    // The text of the box: number, what happened, and the statement.
    QString Text() const;

    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_happened;
    QString m_statement;
    QByteArray m_what;
};

// Joins the two languages of a box: a sentence for the clerk, and below it one in English for support.
QString Sentences(QStringView marathi, const QString& english);
