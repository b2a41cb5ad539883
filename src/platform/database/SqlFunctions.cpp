#include "platform/database/SqlFunctions.h"

#include "platform/database/IsoDates.h"
#include "platform/text/Numbers.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <string_view>

namespace {

std::string_view TextOf(sqlite3_value* value)
{
    const unsigned char* text = sqlite3_value_text(value);
    if (!text)
        return {};
    return std::string_view(
        reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void ReturnText(sqlite3_context* context, std::string_view text)
{
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void CStr(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const int type = sqlite3_value_type(arguments[0]);
    if (type == SQLITE_FLOAT) {
        const QByteArray text = ShortestDecimal(sqlite3_value_double(arguments[0])).toUtf8();
        ReturnText(context, std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
    } else if (type != SQLITE_NULL) {
        ReturnText(context, TextOf(arguments[0]));
    }
}

void Left(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const std::string_view text = TextOf(arguments[0]);
    sqlite3_int64 characters = std::max<sqlite3_int64>(0, sqlite3_value_int64(arguments[1]));
    std::size_t bytes = 0;
    const auto isFollower = [&] { return bytes < text.size() && (text[bytes] & '\xC0') == '\x80'; };
    for (; characters > 0 && bytes < text.size(); --characters) {
        ++bytes;
        while (isFollower())
            ++bytes;
    }
    ReturnText(context, text.substr(0, bytes));
}

void DateAsText(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    const std::string_view iso = TextOf(arguments[0]);
    char text[IsoDates::Length];
    ReturnText(context, IsoDates::ToDayFirst(iso, text) ? std::string_view(text, sizeof text) : iso);
}

void IsoDate(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    char iso[IsoDates::Length];
    if (IsoDates::FromDayFirst(TextOf(arguments[0]), iso))
        ReturnText(context, std::string_view(iso, sizeof iso));
    else
        sqlite3_result_error_code(context, SQLITE_MISMATCH);
}

}

void SqlFunctions::Register(sqlite3* handle)
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function_v2(handle, "cstr", 1, flags, nullptr, CStr, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(handle, "left", 2, flags, nullptr, Left, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(handle, "datetext", 1, flags, nullptr, DateAsText, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(handle, "isodate", 1, flags, nullptr, IsoDate, nullptr, nullptr, nullptr);
}
