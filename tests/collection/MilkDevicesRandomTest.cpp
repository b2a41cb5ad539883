#include "tests/collection/MilkDevicesTest.h"

#include <QRegularExpression>

#include <limits>
#include <map>
#include <random>

namespace {

// The rule of the readings told a second time, over decimal digits instead of floating numbers.
namespace Rule {

const char* const Blanks = "[ \\t\\r\\n]*";

struct Decimal {
    bool isNegative = false;
    QByteArray whole; // without leading zeros
    QByteArray fraction; // as it stands
};

QByteArray WithoutLeadingZeros(QByteArray digits)
{
    while (digits.startsWith('0'))
        digits.remove(0, 1);
    return digits;
}

QRegularExpression NumberThen(const char* unit)
{
    return QRegularExpression(
        Latin("\\A%1([+-]?)%1([0-9]*)(?:\\.([0-9]*))?%1%2%1\\z").arg(Latin(Blanks), Latin(unit)));
}

std::optional<Decimal> Read(const QByteArray& piece, const QRegularExpression& form)
{
    const auto match = form.match(QString::fromLatin1(piece));
    const QByteArray whole = match.captured(2).toLatin1();
    const QByteArray fraction = match.captured(3).toLatin1();
    if (!match.hasMatch() || (whole.isEmpty() && fraction.isEmpty()))
        return {};
    return Decimal{match.captured(1) == Latin("-"), WithoutLeadingZeros(whole), fraction};
}

std::optional<Decimal> Read(const QByteArray& piece)
{
    static const QRegularExpression alone = NumberThen("");
    return Read(piece, alone);
}

std::optional<Decimal> ReadBeforeUnit(const QByteArray& piece)
{
    static const QRegularExpression withUnit = NumberThen("(?:[!-*,/:-~][ -/:-~]*)?");
    return Read(piece, withUnit);
}

std::string Shortest(const Decimal& decimal, bool keepsSign)
{
    QByteArray fraction = decimal.fraction;
    while (fraction.endsWith('0'))
        fraction.chop(1);
    QByteArray text = decimal.whole.isEmpty() ? QByteArray("0") : decimal.whole;
    if (!fraction.isEmpty())
        text += '.' + fraction;
    if (keepsSign && decimal.isNegative && text != "0")
        text.prepend('-');
    return text.toStdString();
}

constexpr qsizetype LongestSum = 16; // digits

// Tenths, rounded half away from zero.
qint64 Tenths(const Decimal& decimal)
{
    if (decimal.whole.size() > LongestSum)
        return (decimal.isNegative ? -1 : 1) * std::numeric_limits<qint64>::max();
    const QByteArray fraction = decimal.fraction.leftJustified(2, '0');
    qint64 tenths = QByteArray(decimal.whole + fraction.left(1)).toLongLong();
    if (fraction[1] >= '5')
        ++tenths;
    return decimal.isNegative ? -tenths : tenths;
}

std::string OneDecimal(const Decimal& decimal)
{
    // Of a number too long for the sum its first four characters are the same, rounded or not.
    if (decimal.whole.size() > LongestSum)
        return ((decimal.isNegative ? "-" : "") + decimal.whole.toStdString()).substr(0, 4);
    const qint64 tenths = Tenths(decimal);
    const qint64 size = std::abs(tenths);
    return ((tenths < 0 ? "-" : "") + std::to_string(size / 10) + '.' + std::to_string(size % 10))
        .substr(0, 4);
}

std::string Piece(const QByteArray& reply, qsizetype start, qsizetype length)
{
    if (reply.size() < start)
        return "-";
    const auto decimal = Read(reply.mid(start - 1, length));
    return decimal ? Shortest(*decimal, false) : "-";
}

// The number of a frame that arrived in these reads.
std::optional<Decimal> Frame(const QList<QByteArray>& reads, char mark)
{
    qsizetype first = 0;
    while (first < reads.size() && !reads[first].startsWith(mark) && reads[first].size() < 10)
        ++first;
    if (first == reads.size())
        return {};
    if (!reads[first].startsWith(mark))
        return Read(reads[first].mid(1));
    const QByteArray text = reads.mid(first).join().mid(1);
    const QRegularExpression digitsThenEnd(Latin("\\A[^0-9]*[0-9][^\\r\\n%1]*").arg(QLatin1Char(mark)));
    const auto upToEnd = digitsThenEnd.match(QString::fromLatin1(text));
    return ReadBeforeUnit(upToEnd.hasMatch() ? upToEnd.captured().toLatin1() : text);
}

std::string PlusFrame(const QList<QByteArray>& reads)
{
    const auto decimal = Frame(reads, '+');
    return decimal ? OneDecimal(*decimal) : "-";
}

std::string PercentFrame(const QList<QByteArray>& reads)
{
    auto decimal = Frame(reads, '%');
    if (!decimal)
        return "-";
    const QByteArray whole = decimal->whole.rightJustified(2, '0');
    decimal->fraction = whole.right(2) + decimal->fraction;
    decimal->whole = WithoutLeadingZeros(whole.chopped(2));
    const std::string text = Shortest(*decimal, true);
    return OneDecimal(*Read(QByteArray::fromStdString(text.substr(0, Tenths(*decimal) >= 99 ? 4 : 3))));
}

// The first line of nine digits alone that has ended.
std::optional<QByteArray> Combined(const QByteArray& all)
{
    static const QRegularExpression line(Latin("(?:\\A|[\\r\\n])([0-9]{9})[\\r\\n]"));
    const auto match = line.match(QString::fromLatin1(all));
    return match.hasMatch() ? std::optional(match.captured(1).toLatin1()) : std::nullopt;
}

// Digits with a point in front of the last so many, the first of them only if it isn't zero.
std::string Pointed(QByteArray digits, qsizetype decimals)
{
    digits.insert(digits.size() - decimals, '.');
    return digits.startsWith('0') ? digits.mid(1).toStdString() : digits.toStdString();
}

struct Written {
    std::string liters = "-";
    std::string fat = "-";
};

Written AtLiters(const QByteArray& scale, const QList<QByteArray>& reads)
{
    const QByteArray all = reads.join();
    if (scale == "DILIGENT")
        return {Piece(all, 2, 7), "-"};
    if (scale == "Micro-Tech")
        return {Piece(all, 6, 4), "-"};
    if (scale == "UDFREAD" || scale == "ELECTKAPIL" || scale == "ELECTRO")
        return {Piece(all, 6, 5), "-"};
    if (scale == "ACE CORP")
        return {PlusFrame(reads), "-"};
    if (const auto digits = Combined(all); scale == "MCS" && digits)
        return {Pointed(digits->left(6), 3), "-"};
    return {};
}

Written AtFat(const QByteArray& scale, const QList<QByteArray>& reads)
{
    const QByteArray all = reads.join();
    if (scale == "Micro-Tech" || scale == "ELECTKAPIL")
        return {"-", PercentFrame(reads)};
    if (scale == "UDFREAD")
        return {Piece(all, 6, 5), Piece(all, 15, 4)};
    if (scale == "ACE CORP")
        return {PlusFrame(reads), "-"};
    if (scale != "MCS")
        return {"-", Piece(all, 15, 4)};
    const auto digits = Combined(all);
    return {"-", digits ? Pointed(digits->right(3), 1) : "-"};
}

}

// Replies that are often nearly right: figures, marks, blanks, line ends, and noise.
class Replies {
public:
    // What comes in one read after the other.
    QList<QByteArray> Next() { return Split(Below(3) == 0 ? Lines() : Jumble()); }

    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

private:
    QByteArray Jumble()
    {
        QByteArray bytes;
        const int length = Below(22);
        for (int at = 0; at < length; ++at)
            bytes += Byte(at);
        return bytes;
    }

    // Lines of about nine digits, now and then with something else among them.
    QByteArray Lines()
    {
        QByteArray bytes;
        for (int line = 0; line < 3; ++line) {
            const int length = Below(4) == 0 ? Below(12) : 9;
            for (int at = 0; at < length; ++at)
                bytes += Below(60) == 0 ? Byte(at) : static_cast<char>('0' + Below(10));
            bytes += Below(8) == 0 ? "" : "\r\n";
        }
        return bytes;
    }

    QList<QByteArray> Split(const QByteArray& bytes)
    {
        QList<QByteArray> reads;
        for (const char byte : bytes) {
            if (reads.isEmpty() || Below(12) == 0)
                reads.append(QByteArray());
            reads.last() += byte;
        }
        return reads;
    }

    char Byte(int at)
    {
        if (at == 0 && Below(3) != 0)
            return Below(2) == 0 ? '+' : '%';
        const int kind = Below(40);
        if (kind < 26)
            return static_cast<char>('0' + Below(10));
        if (kind < 35)
            return ". \r\n+-%.."[Below(9)];
        return static_cast<char>(Below(256));
    }

    std::mt19937 m_random{20260415};
};

class RandomRepliesTest : public MilkDevicesTest {
protected:
    // A device that is asked answers each question alike; one that isn't sends by itself.
    void Send(const QByteArray& scale, bool readsFat, const QList<QByteArray>& reads)
    {
        FakeSerialPorts::Pieces pieces;
        for (const QByteArray& read : reads)
            pieces.push_back({read, 10ms});
        const bool isPercent = readsFat && (scale == "Micro-Tech" || scale == "ELECTKAPIL");
        Ports.Replies.clear();
        if (isPercent || scale == "ACE CORP" || scale == "MCS")
            Ports.Replies.insert("", pieces);
        else
            for (const char* question : {"w1", "W1", "W", "RD"})
                Ports.Replies.insert(question, pieces);
        Ports.Log.clear();
        Ports.Time += 2s; // the reading before is long over
    }

    MilkDevices::Fields Read(bool readsFat)
    {
        return readsFat ? Devices.ReadFat() : MilkDevices::Fields{Devices.ReadLiters(ThreeDecimals), {}};
    }
};

}

TEST_F(RandomRepliesTest, AHundredThousandOfThemWriteWhatTheRuleSaysAndNothingElse)
{
    const std::vector<QByteArray> scales{
        "DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "MCS", "ACE CORP", "NO"};
    Replies replies;
    std::map<QByteArray, int> written;
    for (int time = 0; time < 100'000; ++time) {
        const QByteArray& scale = scales[time % scales.size()];
        const bool readsFat = replies.Below(2) == 0;
        const QList<QByteArray> reads = replies.Next();
        Scale(scale.constData());
        Send(scale, readsFat, reads);
        const auto start = Ports.Now();
        const MilkDevices::Fields fields = Read(readsFat);
        const Rule::Written rule = readsFat ? Rule::AtFat(scale, reads) : Rule::AtLiters(scale, reads);
        const QByteArray what =
            scale + ' ' + QByteArray::number(time) + ' ' + reads.join().toPercentEncoding();
        ASSERT_EQ(Written(fields.liters), rule.liters) << what.constData();
        ASSERT_EQ(Written(fields.fat), rule.fat) << what.constData();
        ASSERT_EQ(Ports.OpenNow, 0) << what.constData();
        ASSERT_LE(Ports.Now() - start, 1620ms) << what.constData();
        written[scale] += rule.liters == "-" && rule.fat == "-" ? 0 : 1;
    }
    EXPECT_EQ(Ports.MostOpen, 1);
    for (const QByteArray& scale : scales) {
        EXPECT_GT(written[scale], 500) << scale.constData();
        EXPECT_LT(written[scale], 12'000) << scale.constData();
    }
}
