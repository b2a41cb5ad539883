#pragma once

#include <QDate>
#include <QString>

#include <memory>

class Connection;

// A value of a row.
class FieldValue {
public:
    FieldValue() = default;
    static FieldValue OfText(QString text);
    static FieldValue OfNumber(double number);
    static FieldValue OfDate(QDate date);

    bool IsNull() const { return m_kind == Kind::Null; }
    bool IsDate() const { return m_kind == Kind::Date; }

    // The value as text: a number in its shortest form, a date as dd/MM/yyyy, Null as the empty text.
    QString Text() const;

    // The value as a number: a text through Val, Null as 0.
    double Number() const;

    // The value as a date: a text must be dd/MM/yyyy, else it is a type mismatch error; Null is an invalid
    // date.
    QDate Date() const;

    bool operator==(const FieldValue& other) const = default;

private:
    enum class Kind { Null, Text, Number, Date };
    Kind m_kind = Kind::Null;
    QString m_text;
    double m_number = 0;
    QDate m_date;
};

// The rows of a query, read forwards one by one. After opening, the first row is the current one, if there is
// one. Rows are read when they are asked for, so the first row of a long query comes quickly. If a statement
// writes to a table of the query, the record set first reads its remaining rows, so that they are the ones
// from before. After Close, or when the connection has closed, reading is a "closed" error.
class Recordset {
public:
    Recordset(Connection& connection, const QString& query);
    Recordset(Connection& connection, QStringView query) : Recordset(connection, query.toString()) { }
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    // Whether there is no current row any more.
    bool Eof() const;

    // Goes to the next row; after the last it is a "no current record" error.
    void MoveNext();

    // The value of a field of the current row, by its name in upper or lower case. An unknown name or no
    // current row is an error.
    FieldValue operator[](QStringView field) const;

    // The same by position, from 0.
    FieldValue At(int column) const;
    int Columns() const;
    QString Name(int column) const;

    // Closes it before the end of its lifetime.
    void Close();

    class Private;

private:
    std::unique_ptr<Private> m_d;
};
