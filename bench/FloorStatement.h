#pragma once

#include <concepts>
#include <string_view>

struct sqlite3_stmt;

// A statement of the engine's own, prepared once on the open books and bound directly: what no way of
// speaking to the engine can undercut. A failure is a RunTimeError.
class FloorStatement {
public:
    // `sql` is the engine's SQL with a ? for every value.
    explicit FloorStatement(const char* sql);
    ~FloorStatement();
    FloorStatement(const FloorStatement&) = delete;
    FloorStatement& operator=(const FloorStatement&) = delete;

    // Gives all values in their order. Texts are UTF-8 and must stay until Reset.
    template <class... Values> FloorStatement& Bind(const Values&... values)
    {
        int at = 0;
        (Put(++at, values), ...);
        return *this;
    }

    // To the next row; false at the end.
    bool Step();
    void Reset();

    // Runs to the end and is ready again; rows are stepped over.
    void Run();

    // Whether there is a row, and ready again.
    bool Finds();

    // The first row's first number, 0 without one, and ready again.
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
