#pragma once

#include <QDate>
#include <QString>

#include <memory>

class Connection;

// One value of a row as the statement returned it.
class FieldValue {
public:
    FieldValue() = default;
    static FieldValue OfText(QString text);
    static FieldValue OfNumber(double number);
    static FieldValue OfDate(QDate date);

    bool IsNull() const { return m_kind == Kind::Null; }
    bool IsDate() const { return m_kind == Kind::Date; }

    // The text; a number in shortest form, a date as dd/MM/yyyy, Null as the empty text.
    QString Text() const;

    // The number; a text through Val, Null as 0.
    double Number() const;

    // The date; a text must be one (dd/MM/yyyy), else a type mismatch error; Null as an invalid date.
    QDate Date() const;

private:
    enum class Kind { Null, Text, Number, Date };
    Kind m_kind = Kind::Null;
    QString m_text;
    double m_number = 0;
    QDate m_date;
};

// The rows of a query, read forwards one at a time. It stands on the first row after opening, if there
// is one. Rows are read as they are asked for, so the first row of a long ordered query is cheap. A statement
// that writes a table of the query lets the record set read itself to its end first, so its rows are those
// of before. After Close, or when the connection has closed, every reading is a "closed" error.
class Recordset {
public:
    Recordset(Connection& connection, const QString& query);
    Recordset(Connection& connection, QStringView query) : Recordset(connection, query.toString()) { }
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    // Whether the rows have ended.
    bool Eof() const;

    // To the next row; past the end it is a "no current record" error.
    void MoveNext();

    // A field of the current row by its name in any spelling. An unknown name, or no current row, is an
    // error.
    FieldValue operator[](QStringView field) const;

    // By position, from 0.
    FieldValue At(int column) const;
    int Columns() const;
    QString Name(int column) const;

    // Ends the reading before the record set goes out of scope.
    void Close();

    class Private;

private:
    std::unique_ptr<Private> m_d;
};
