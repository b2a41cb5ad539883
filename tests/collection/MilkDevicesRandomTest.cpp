#include "MilkDevicesTest.h"

#include <QRegularExpression>

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

std::optional<Decimal> Read(const QByteArray& piece)
{
    static const QRegularExpression number(
        Latin("\\A%1([+-]?)%1([0-9]*)(?:\\.([0-9]*))?%1\\z").arg(Latin(Blanks)));
    const auto match = number.match(QString::fromLatin1(piece));
    const QByteArray whole = match.captured(2).toLatin1();
    const QByteArray fraction = match.captured(3).toLatin1();
    if (!match.hasMatch() || (whole.isEmpty() && fraction.isEmpty()))
        return {};
    return Decimal{match.captured(1) == Latin("-"), WithoutLeadingZeros(whole), fraction};
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

// Tenths, rounded half away from zero.
qint64 Tenths(const Decimal& decimal)
{
    const QByteArray fraction = decimal.fraction.leftJustified(2, '0');
    qint64 tenths = QByteArray(decimal.whole + fraction.left(1)).toLongLong();
    if (fraction[1] >= '5')
        ++tenths;
    return decimal.isNegative ? -tenths : tenths;
}

std::string OneDecimal(const Decimal& decimal)
{
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
    return Read(upToEnd.hasMatch() ? upToEnd.captured().toLatin1() : text);
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

}

// Replies that are often nearly right: figures, marks, blanks, line ends, and noise.
class Replies {
public:
    QList<QByteArray> Next()
    {
        QList<QByteArray> reads(1);
        const int length = Below(22);
        for (int at = 0; at < length; ++at) {
            if (!reads.last().isEmpty() && Below(12) == 0)
                reads.append(QByteArray());
            reads.last() += Byte(at);
        }
        if (reads.last().isEmpty())
            reads.removeLast();
        return reads;
    }

    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

private:
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

}

TEST_F(MilkDevicesTest, AHundredThousandRandomRepliesWriteWhatTheRuleSaysAndNothingElse)
{
    const std::vector<const char*> scales{
        "DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "ACE CORP"};
    Replies replies;
    int written = 0;
    for (int time = 0; time < 100'000; ++time) {
        const char* scale = scales[static_cast<size_t>(replies.Below(static_cast<int>(scales.size())))];
        const bool readsFat = replies.Below(2) == 0;
        const QList<QByteArray> reads = replies.Next();
        const QByteArray all = reads.join();
        FakeSerialPorts::Pieces pieces;
        for (const QByteArray& read : reads)
            pieces.push_back({read, 10ms});
        Scale(scale);
        // A device that is asked answers each question; the framed ones talk by themselves.
        const QByteArray name(scale);
        const bool hasPercent = name == "Micro-Tech" || name == "ELECTKAPIL";
        Ports.Replies.clear();
        if (name == "ACE CORP" || (hasPercent && readsFat))
            Ports.Replies.insert("", pieces);
        for (const char* question : {"w1", "W1", "W", "RD"})
            Ports.Replies.insert(question, pieces);
        Ports.Log.clear();
        Ports.Time += 2s; // the reading before is long over
        const auto start = Ports.Now();

        std::string liters = "-";
        std::string fat = "-";
        if (name == "ACE CORP")
            liters = Rule::PlusFrame(reads);
        else if (readsFat)
            fat = hasPercent ? Rule::PercentFrame(reads) : Rule::Piece(all, 15, 4);
        if (name == "UDFREAD" || (!readsFat && name != "ACE CORP"))
            liters = name == "DILIGENT" ? Rule::Piece(all, 2, 7)
                                        : Rule::Piece(all, 6, name == "Micro-Tech" ? 4 : 5);

        MilkDevices::Fields fields;
        if (readsFat)
            fields = Devices.ReadFat();
        else
            fields.liters = Devices.ReadLiters(ThreeDecimals);
        ASSERT_EQ(Written(fields.liters), liters)
            << scale << ' ' << time << ' ' << all.toPercentEncoding().data();
        ASSERT_EQ(Written(fields.fat), fat) << scale << ' ' << time << ' ' << all.toPercentEncoding().data();
        ASSERT_EQ(Ports.OpenNow, 0);
        ASSERT_LE(Ports.Now() - start, 1620ms);
        written += liters == "-" && fat == "-" ? 0 : 1;
    }
    EXPECT_EQ(Ports.MostOpen, 1);
    EXPECT_GT(written, 10'000);
    EXPECT_LT(written, 90'000);
}
