#pragma once

#include "platform/database/Translator.h"

// The translation of one statement: its tokens, the tables that it can name, and what has been decided so
// far.
class TranslatorWork {
public:
    TranslatorWork(Catalogue& catalogue, const ScannedStatement& scanned, QStringView statement);

    Translation Run();

private:
    // A single column, literal or call.
    struct Operand {
        enum class Kind { None, Literal, Column, Call, Other };
        Kind kind = Kind::None;
        int first = -1;
        int last = -1;
        bool hasSign = false;
        ColumnType type = ColumnType::Unknown;
        bool isDateAsText = false; // cstr of a date column
    };

    struct Source {
        std::shared_ptr<const Table> table;
        QStringView name; // its alias, or its own name
        int depth = 0;
    };

    void FindKind();
    void FindTables();
    int AddSource(int i);
    std::shared_ptr<const Table> Look(int i);

    void StoreInsert();
    void StoreUpdate();
    void StoreValues(int open, const std::vector<Column>& columns);
    void StoreSelection(int select, const std::vector<Column>& columns);
    void StoreItem(int first, int last, ColumnType type);
    bool StoreStar(int first, int star, const std::vector<Column>& columns, std::size_t position);
    std::vector<Column> TargetColumns(int& i) const;

    void Conditions();
    void Compare(int sign);
    void CompareBetween(int between);
    void CompareIn(int in);
    void CompareLiteral(const Operand& literal, const Operand& other, bool forEquality);
    void UnwrapDate(const Operand& call);

    void Calls();
    void ResultDates();
    void KeepPositions();
    void UseInLine(int i);

    Operand ReadForwards(int first) const;
    Operand ReadBackwards(int last) const;
    Operand ReadWhole(int first, int last) const;
    Operand OfCall(int name, int close) const;
    Operand OfColumn(int first, int last) const;
    ColumnType TypeOfColumn(int first, int last) const;
    int ListEnd(int i) const;
    int ItemEnd(int i, int end) const;
    qsizetype StarWidth(int depth) const;
    void UseLiteral(const Operand& literal, ColumnType type, bool isStored);
    void SetUse(int token, LiteralUse use);

    Catalogue& m_catalogue;
    const ScannedStatement& m_scanned;
    QStringView m_statement;
    StatementTokens m_tokens;
    Translation m_made;
    std::vector<Source> m_sources;
    bool m_hasUnion = false;
    int m_conditionsFrom = 0;
};
