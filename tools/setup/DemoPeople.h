#pragma once

#include <QStringView>

#include <array>

// The invented members and customers of the demonstration society.
struct DemoMember {
    QStringView name;
    QStringView animal; // as stored
    bool byBank = false;
    int village = 0; // index in DemoVillages
};

inline constexpr std::array<QStringView, 4> DemoVillages{u"कराड", u"सातारा", u"मसूर", u"वडगाव"};

inline constexpr std::array<DemoMember, 40> DemoMembers{{
    {u"रामचंद्र विठ्ठल पाटील", u"gaaya", true, 2},
    {u"सुनीता गणपत जाधव", u"mhOsa", false, 2},
    {u"महादेव शंकर शिंदे", u"daonhI", false, 3},
    {u"लक्ष्मी बाळू मोरे", u"gaaya", false, 2},
    {u"दत्तात्रय नारायण कदम", u"mhOsa", true, 0},
    {u"अनिल मारुती पवार", u"gaaya", false, 2},
    {u"सखाराम धोंडीबा चव्हाण", u"daonhI", true, 3},
    {u"शोभा हणमंत साळुंखे", u"mhOsa", false, 2},
    {u"विलास आनंदा निकम", u"gaaya", false, 3},
    {u"कृष्णा बाबूराव थोरात", u"mhOsa", false, 2},
    {u"मंगल दिनकर यादव", u"gaaya", true, 0},
    {u"संजय तुकाराम माने", u"daonhI", false, 2},
    {u"प्रकाश भीमराव गायकवाड", u"gaaya", false, 3},
    {u"राजेंद्र सदाशिव भोसले", u"mhOsa", true, 1},
    {u"वैशाली सुरेश कांबळे", u"gaaya", false, 2},
    {u"पांडुरंग ज्ञानू घाडगे", u"mhOsa", false, 2},
    {u"तानाजी रघुनाथ देसाई", u"daonhI", false, 3},
    {u"उषा विश्वास जगताप", u"gaaya", false, 2},
    {u"हणमंत गोविंद सूर्यवंशी", u"mhOsa", false, 0},
    {u"नामदेव यशवंत काळे", u"gaaya", true, 2},
    {u"सुभाष केशव लोखंडे", u"mhOsa", false, 3},
    {u"शालन जयवंत डुबल", u"gaaya", false, 2},
    {u"बाजीराव अप्पा फडतरे", u"daonhI", true, 2},
    {u"अशोक मुरलीधर कुंभार", u"mhOsa", false, 0},
    {u"कमल वसंत सुतार", u"gaaya", false, 2},
    {u"शिवाजी पंढरीनाथ लोहार", u"mhOsa", false, 3},
    {u"जयश्री अरुण थोरवे", u"daonhI", false, 2},
    {u"भगवान रामू खोत", u"gaaya", false, 2},
    {u"मोहन दादासाहेब नलवडे", u"mhOsa", true, 1},
    {u"इंदुमती शामराव पिसाळ", u"gaaya", false, 2},
    {u"विजय निवृत्ती भिसे", u"daonhI", false, 3},
    {u"संगीता मधुकर वाघमारे", u"mhOsa", false, 2},
    {u"ज्ञानेश्वर एकनाथ महाडिक", u"gaaya", true, 0},
    {u"नंदा पोपट साठे", u"mhOsa", false, 2},
    {u"उत्तम लक्ष्मण बर्गे", u"daonhI", false, 2},
    {u"रेखा चंद्रकांत इंगवले", u"gaaya", false, 3},
    {u"सर्जेराव बापू डांगे", u"mhOsa", false, 2},
    {u"आक्काताई खाशाबा मदने", u"gaaya", false, 2},
    {u"धनाजी विष्णू बाबर", u"daonhI", true, 3},
    {u"छाया प्रल्हाद कणसे", u"mhOsa", false, 2},
}};

struct DemoCustomer {
    QStringView name;
    QStringView animal;
    bool federation = false;
};

inline constexpr std::array<DemoCustomer, 6> DemoCustomers{{
    {u"सातारा जिल्हा दूध संघ", u"daonhI", true},
    {u"कोयना दूध संघ", u"daonhI", true},
    {u"आनंद मिठाई भांडार", u"mhOsa", false},
    {u"महालक्ष्मी चहा केंद्र", u"gaaya", false},
    {u"प्राथमिक आरोग्य केंद्र", u"gaaya", false},
    {u"गणेश भोजनालय", u"daonhI", false},
}};

// An advance, in paise by head. Days are counted from the first of the accounting year.
struct DemoVoucher {
    int day = 0;
    int member = 0;
    qint64 advance = 0;
    qint64 feed = 0;
    qint64 groceries = 0;
    qint64 other = 0;
};

inline constexpr std::array<DemoVoucher, 14> DemoVouchers{{
    {3, 1, 200000, 0, 0, 0},
    {5, 4, 0, 124550, 0, 0},
    {8, 7, 150000, 0, 64025, 0},
    {12, 12, 0, 98000, 0, 0},
    {14, 2, 120000, 0, 0, 0},
    {14, 38, 2500000, 0, 0, 0}, // more than his milk brings in ten days
    {17, 20, 0, 0, 45575, 0},
    {19, 15, 0, 0, 0, 25000},
    {22, 1, 0, 113000, 0, 0},
    {23, 9, 100000, 86550, 0, 0},
    {25, 30, 50000, 0, 0, 0},
    {26, 17, 0, 0, 0, 12000},
    {44, 5, 0, 210050, 0, 0},
    {53, 11, 120000, 0, 38575, 0},
}};

// Money that came back, in paise.
struct DemoReceipt {
    int day = 0;
    int member = 0;
    qint64 paise = 0;
};

inline constexpr std::array<DemoReceipt, 4> DemoReceipts{{
    {10, 1, 50000},
    {18, 20, 45575},
    {24, 7, 30000},
    {45, 38, 100000},
}};
