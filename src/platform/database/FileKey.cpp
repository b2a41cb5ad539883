#include "platform/database/FileKey.h"

#include <QHash>
#include <QPair>
#include <QRandomGenerator>

#include <nettle/pbkdf2.h>
#include <sqlcipher/sqlite3.h>

#include <array>
#include <cstddef>

namespace {

constexpr int SaltBytes = 16;
constexpr int KeyBytes = 32;
constexpr int Rounds = 64000;
constexpr int KeptKeys = 16;

const unsigned char* Bytes(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

struct Salt {
    QByteArray bytes; // empty if it can't be read
    bool isNew = false;
};

Salt NewSalt()
{
    QByteArray salt;
    while (salt.size() < SaltBytes)
        salt.append(static_cast<char>(QRandomGenerator::system()->bounded(256)));
    return {salt, true};
}

// Reads through the file that the engine has open: opening it a second time would cost the engine its locks.
Salt SaltOf(sqlite3* opened)
{
    sqlite3_file* file = nullptr;
    if (sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || file == nullptr
        || file->pMethods == nullptr)
        return {};
    sqlite3_int64 size = 0;
    if (file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return {};
    if (size == 0)
        return NewSalt();
    QByteArray salt(SaltBytes, '\0');
    return file->pMethods->xRead(file, salt.data(), SaltBytes, 0) == SQLITE_OK ? Salt{salt, false} : Salt{};
}

QByteArray KeyOf(const QByteArray& password, const QByteArray& salt)
{
    std::array<unsigned char, KeyBytes> key{};
    pbkdf2_hmac_sha1(static_cast<std::size_t>(password.size()), Bytes(password), Rounds, SaltBytes,
        Bytes(salt), key.size(), key.data());
    return QByteArray(reinterpret_cast<const char*>(key.data()), KeyBytes).toHex();
}

QByteArray KeptKeyOf(const QByteArray& password, const QByteArray& salt)
{
    static QHash<QPair<QByteArray, QByteArray>, QByteArray> kept;
    if (const auto found = kept.constFind({password, salt}); found != kept.constEnd())
        return *found;
    QByteArray key = KeyOf(password, salt);
    if (kept.size() >= KeptKeys)
        kept.clear();
    kept.insert({password, salt}, key);
    return key;
}

}

QByteArray FileKey::For(sqlite3* opened, const QString& password)
{
    QByteArray bytes = password.toUtf8();
    if (bytes.isEmpty())
        return bytes;
    const Salt salt = SaltOf(opened);
    if (salt.bytes.isEmpty())
        return bytes;
    return "x'" + KeptKeyOf(bytes, salt.bytes) + (salt.isNew ? salt.bytes.toHex() : QByteArray()) + "'";
}
