#pragma once

#include <concepts>
#include <string_view>

struct sqlite3_stmt;

// A prepared statement of the database engine, bound directly: no other access to the database can be faster.
// A failure is a RunTimeError.
class FloorStatement {
public:
    // `sql` is the engine's SQL with a ? for each value.
    explicit FloorStatement(const char* sql);
    ~FloorStatement();
    FloorStatement(const FloorStatement&) = delete;
    FloorStatement& operator=(const FloorStatement&) = delete;

    // Binds all values in order. Texts are UTF-8 and must exist until Reset.
    template <class... Values> FloorStatement& Bind(const Values&... values)
    {
        int at = 0;
        (Put(++at, values), ...);
        return *this;
    }

    // Goes to the next row; returns false at the end.
    bool Step();
    void Reset();

    // Runs the statement to its end, ignoring rows, and resets it.
    void Run();

    // Returns whether there is a row, and resets it.
    bool Finds();

    // Returns the first number of the first row, 0 if there is none, and resets it.
    double Number();

    // A column of the current row.
    double NumberAt(int column) const;
    std::string_view TextAt(int column) const;

private:
    void Put(int at, std::string_view text);
    void Put(int at, double number);
    void Put(int at, std::integral auto number) { PutWhole(at, static_cast<long long>(number)); }
    void PutWhole(int at, long long number);

    sqlite3_stmt* m_statement = nullptr;
};
