#include "tests/platform/database/DatabaseTest.h"

#include "platform/database/FileKey.h"

#include <QFile>
#include <QSet>

namespace {

// Books that were made and filled, and are closed.
class FileKeyTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        connection.Close();
    }

    QByteArray Salt(const QString& name) const
    {
        QFile read(name);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.read(16);
    }

    // What the engine says when it makes the key of the password itself.
    static int EnginesAnswer(const QString& name, const QString& password)
    {
        sqlite3* handle = nullptr;
        EXPECT_EQ(sqlite3_open(name.toUtf8().constData(), &handle), SQLITE_OK);
        const QByteArray statements = "pragma key='" + password.toUtf8().replace("'", "''")
            + "'; pragma cipher_page_size=1024; select count(*) from CityMaster";
        const int code = sqlite3_exec(handle, statements.constData(), nullptr, nullptr, nullptr);
        sqlite3_close(handle);
        return code;
    }

    static QByteArray KeyOf(const QString& name, const QString& password)
    {
        sqlite3* handle = nullptr;
        EXPECT_EQ(sqlite3_open(name.toUtf8().constData(), &handle), SQLITE_OK);
        const QByteArray key = FileKey::For(handle, password);
        sqlite3_close(handle);
        return key;
    }

    QString Another() const
    {
        const QString name = folder.filePath("another.mdb");
        DatabaseFile::Create(name, TestPassword);
        return name;
    }
};

TEST_F(FileKeyTest, TheEngineOpensWithThePasswordAloneWhatWasMadeWithTheKey)
{
    EXPECT_EQ(EnginesAnswer(file, TestPassword), SQLITE_OK);
    EXPECT_EQ(EnginesAnswer(file, TestPassword + u'x'), SQLITE_NOTADB);
}

TEST_F(FileKeyTest, APasswordThatIsWrongStaysWrongBehindTheRightOne)
{
    Open();
    connection.Close();
    EXPECT_THROW(Open("another"), RunTimeError);
    Open();
    EXPECT_TRUE(connection.IsOpen());
}

TEST_F(FileKeyTest, EachPasswordAndEachFileHasAKeyOfItsOwn)
{
    const QString another = folder.filePath("another.mdb");
    ASSERT_TRUE(QFile::copy(file, another));
    QFile write(another);
    ASSERT_TRUE(write.open(QIODevice::ReadWrite));
    write.write("0123456789abcdef");
    write.close();
    const QSet<QByteArray> keys{
        KeyOf(file, TestPassword), KeyOf(file, "b"), KeyOf(another, TestPassword), KeyOf(another, "b")};
    EXPECT_EQ(keys.size(), 4);
    EXPECT_TRUE(keys.contains(KeyOf(file, TestPassword))) << "and it stays the same";
}

TEST_F(FileKeyTest, BooksThatAreMadeGetASaltThatNoOthersHave)
{
    const QString empty = folder.filePath("empty.mdb");
    QFile made(empty);
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.close();
    QSet<QByteArray> keys;
    for (int i = 0; i < 3; ++i)
        keys.insert(KeyOf(empty, TestPassword));
    EXPECT_EQ(keys.size(), 3);
    EXPECT_NE(Salt(file), QByteArray(16, '\0'));
}

TEST_F(FileKeyTest, ManyFilesOneAfterTheOtherKeepTheirKeys)
{
    const QByteArray first = KeyOf(file, TestPassword);
    for (int i = 0; i < 20; ++i)
        KeyOf(file, QString::number(i));
    EXPECT_EQ(KeyOf(file, TestPassword), first);
}

}
