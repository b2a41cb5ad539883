#include "platform/forms/TextField.h"
#include "platform/text/Shivaji01.h"
#include "tests/platform/forms/FieldTest.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

class TextFieldTest : public FieldTest<TextField> {
protected:
    static std::unique_ptr<TextField> Make(Screen* screen)
    {
        return std::make_unique<TextField>(screen, "txtMemberName");
    }

    // Plays with a field that shows what it holds, whatever is done to it.
    void WithText(const std::function<void(TextField&)>& script)
    {
        With(Make, [&](TextField& field) {
            script(field);
            EXPECT_EQ(field.Seen(), Shivaji01::ToUnicode(field.Text()));
        });
    }

    // Sets a stored text, types, and reads what is stored.
    std::string After(TextField& field, const char* stored, const char* keys)
    {
        Do([&field, stored] { field.SetText(Q(stored)); });
        Type(keys);
        return Text(field);
    }

    // The same, committed by an input method.
    std::string AfterComposing(TextField& field, const char* stored, const char* text)
    {
        Do([&field, stored] { field.SetText(Q(stored)); });
        Compose(text);
        return Text(field);
    }

    // Where the caret stands in what is seen, step by step, as keys are pressed.
    std::vector<int> Walk(TextField& field, const char* key, int steps)
    {
        std::vector<int> stops;
        for (int i = 0; i < steps; ++i) {
            Type(key);
            stops.push_back(Line(field).cursorPosition());
        }
        return stops;
    }

    void ClickBehind(TextField& field, int seen)
    {
        Do([&field, seen] {
            QLineEdit& line = Line(field);
            line.setCursorPosition(seen); // as the press of the mouse leaves it
            QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), line.mapToGlobal(QPointF(1, 1)),
                Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&line, &release);
        });
    }
};

TEST_F(TextFieldTest, LatinKeysAreStoredRawAndSeenAsDevanagari)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Typed(field, "gaaya"), "gaaya");
        EXPECT_EQ(Seen(field), "गाय");
        EXPECT_EQ(Typed(field, "&aanaoSvar 12"), "&aanaoSvar 12");
        EXPECT_EQ(Seen(field), Shivaji01::ToUnicode(QStringView(u"&aanaoSvar 12")).toStdString());
    });
}

TEST_F(TextFieldTest, TheEyeFollowsEveryKey)
{
    WithText([&](TextField& field) {
        const std::vector<std::pair<const char*, const char*>> keys{
            {"s", "स्"}, {"a", "स"}, {"k", "सक"}, {"a", "सका"}, {"L", "सकाळ"}};
        for (const auto& [key, seen] : keys) {
            Type(key);
            EXPECT_EQ(Seen(field), seen);
        }
        EXPECT_EQ(Typed(field, "ik"), "ik");
        EXPECT_EQ(Seen(field), "कि");
    });
}

TEST_F(TextFieldTest, BackspaceTakesBackWhatIsSeen)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "gaaya", "{BS}"), "gaa") << "a letter of two keys";
        EXPECT_EQ(Seen(field), "गा");
        EXPECT_EQ(After(field, "gaaya", "{BS}{BS}"), "ga") << "the sign before its letter";
        EXPECT_EQ(After(field, "sao", "{BS}"), "sa");
        EXPECT_EQ(After(field, "ik", "{BS}"), "i");
        EXPECT_EQ(After(field, "ka-", "{BS}"), "ka");
        EXPECT_EQ(After(field, "kao", "{BS}"), "k") << "one sign of two keys";
        EXPECT_EQ(After(field, "rama ", "{BS}"), "rama");
        EXPECT_EQ(After(field, "", "{BS}"), "");
    });
}

TEST_F(TextFieldTest, BackspaceEmptiesAnyNameAndSeesLessEachTime)
{
    WithText([&](TextField& field) {
        for (const char* stored :
            {"&aanaoSvar", "saMQyaakaL", "maa^Q`aI", "ip`MT", "sad\\gau$", "(12)", "\xC3\xA1yaa"}) {
            Do([&] { field.SetText(Q(stored)); });
            for (qsizetype seen = field.Seen().size(); seen > 0;) {
                Type("{BS}");
                ASSERT_LT(field.Seen().size(), seen) << stored;
                seen = field.Seen().size();
            }
            EXPECT_EQ(Text(field), "");
        }
    });
}

TEST_F(TextFieldTest, LeftAndRightGoBySyllables)
{
    WithText([&](TextField& field) {
        Do([&] { field.SetText("saMQyaakaL"); }); // सं ध्या का ळ
        EXPECT_EQ(Walk(field, "{Left}", 5), (std::vector{8, 6, 2, 0, 0}));
        EXPECT_EQ(Walk(field, "{Right}", 5), (std::vector{2, 6, 8, 9, 9}));
        EXPECT_EQ(Walk(field, "{Home}", 1), (std::vector{0}));
        EXPECT_EQ(Walk(field, "{End}", 1), (std::vector{9}));
    });
}

TEST_F(TextFieldTest, ASyllableWhoseSignIsTypedFirstIsOneStep)
{
    WithText([&](TextField& field) {
        Do([&] { field.SetText("ikma"); });
        EXPECT_EQ(Walk(field, "{Left}", 2), (std::vector{2, 0}));
    });
}

TEST_F(TextFieldTest, ShiftSelectsAndTypingReplacesTheSelection)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "saMQyaakaL", "+{Left}+{Left}"), "saMQyaakaL");
        EXPECT_EQ(Selected(field), "काळ");
        Type("r");
        EXPECT_EQ(Text(field), "saMQyaar");
        EXPECT_EQ(After(field, "rama", "{Home}+{End}k"), "k");
        EXPECT_EQ(After(field, "rama", "{Home}+{Right}{DEL}"), "ma");
        EXPECT_EQ(After(field, "ramaba", "+{Left}{BS}"), "rama");
        EXPECT_EQ(After(field, "rama", "^agaa"), "gaa");
    });
}

TEST_F(TextFieldTest, AMoveWithoutShiftEndsTheSelection)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "rama", "^a{End}k"), "ramak");
        EXPECT_EQ(Selected(field), "");
    });
}

TEST_F(TextFieldTest, EntrySelectsTheWholeText)
{
    WithText([&](TextField& field) {
        Type("rama");
        EnterAnew();
        EXPECT_EQ(Selected(field), "राम");
        Type("k");
        EXPECT_EQ(Text(field), "k");
    });
}

TEST_F(TextFieldTest, DeleteTakesTheNextSyllable)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "saMQyaakaL", "{Home}{DEL}"), "QyaakaL");
        EXPECT_EQ(After(field, "saMQyaakaL", "{Home}{Right}{DEL}"), "saMkaL");
        EXPECT_EQ(After(field, "rama", "{DEL}"), "rama");
    });
}

TEST_F(TextFieldTest, KeysGoInWhereTheCaretStands)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "rama", "{Left}Qaa"), "raQaama");
        EXPECT_EQ(Seen(field), "राधाम");
        EXPECT_EQ(Line(field).cursorPosition(), 4);
        EXPECT_EQ(After(field, "rama", "{Home}i"), "irama");
        EXPECT_EQ(Seen(field), "रिाम") << "what stands behind may change its reading";
        EXPECT_EQ(After(field, "raka", "{Left}{Left}{Right}{Right}{BS}"), "rak");
    });
}

TEST_F(TextFieldTest, AHalfFormTypedBeforeALetterJoinsIt)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "rak", "{Left}s"), "rask");
        EXPECT_EQ(Seen(field), "रास्क");
    });
}

TEST_F(TextFieldTest, WholeWordsOfAnInputMethodAreSpelledCanonically)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "गाय"), "gaaya");
        EXPECT_EQ(Seen(field), "गाय");
        EXPECT_EQ(Composed(field, "संध्याकाळ"), "saMQyaakaL");
        EXPECT_EQ(Composed(field, "ज्ञानेश्वर रामचंद्र"), Shivaji01::FromUnicode(u"ज्ञानेश्वर रामचंद्र").toStdString());
        EXPECT_EQ(Seen(field), "ज्ञानेश्वर रामचंद्र");
    });
}

TEST_F(TextFieldTest, DevanagariFromAKeyIsTheSameAsFromAnInputMethod)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Typed(field, "कि"), "ik");
        EXPECT_EQ(Seen(field), "कि");
    });
}

TEST_F(TextFieldTest, ALetterInTwoPiecesIsOneLetter)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "अ\xE0\xA5\x85ड."), "A^D.");
        EXPECT_EQ(Composed(field, "ॲड."), "A^D.");
        Do([&] { field.Clear(); });
        for (const char* part : {"अ", "\xE0\xA5\x85", "ड"})
            Compose(part);
        EXPECT_EQ(Text(field), "A^D");
        EXPECT_EQ(Seen(field), "ॲड");
    });
}

TEST_F(TextFieldTest, WhileDevanagariComesInPunctuationIsPunctuation)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "गोडबोले"), "gaaoDbaaolao");
        Type("{-}");
        Compose("पाटील");
        EXPECT_EQ(Seen(field), "गोडबोले-पाटील");
        EXPECT_EQ(Text(field), Shivaji01::FromUnicode(u"गोडबोले-पाटील").toStdString());
        for (const char* sign :
            {"-", "(", ")", "/", ",", "%", ":", "?", "!", ".", ";", "[", "]", "=", "\""}) {
            Composed(field, "क");
            Type((std::string("{") + sign + "}").c_str());
            EXPECT_EQ(Seen(field), std::string("क") + sign);
            Compose("म");
            EXPECT_EQ(Seen(field), std::string("क") + sign + "म");
        }
    });
}

TEST_F(TextFieldTest, DevanagariFromKeysBringsItsPunctuationToo)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Typed(field, "राम {(}गाय{)}"), Shivaji01::FromUnicode(u"राम (गाय)").toStdString());
    });
}

TEST_F(TextFieldTest, WhatIsBeingComposedIsDevanagariComingIn)
{
    WithText([&](TextField& field) {
        Do([&] { field.Clear(); });
        Compose("", "क");
        Compose("");
        Type("{(}");
        EXPECT_EQ(Seen(field), "(");
    });
}

TEST_F(TextFieldTest, ALatinLetterBringsTheKeysOfTheOldLayoutBack)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "राम"), "rama");
        Type("{-}ka{-}{%}yaa");
        EXPECT_EQ(Text(field), "rama\xC2\xB9ka-%yaa");
        EXPECT_EQ(Typed(field, "ka-"), "ka-");
    });
}

TEST_F(TextFieldTest, AFieldEnteredAnewGoesOnAsWasWrittenLast)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "gaaoDbaaolao", "{End}{(}"), "gaaoDbaaolao(")
            << "keys of the old layout at first";
        Compose("राम");
        Do([&] { field.SetText("gaaoDbaaolao"); });
        EnterAnew();
        Type("{End}-");
        Compose("पाटील");
        EXPECT_EQ(Seen(field), "गोडबोले-पाटील");
        EXPECT_EQ(Text(field), Shivaji01::FromUnicode(u"गोडबोले-पाटील").toStdString());
        EnterAnew();
        Type("k");
        EnterAnew();
        EXPECT_EQ(Typed(field, "{(}aa"), "(aa");
        EXPECT_EQ(Seen(field), "ह्याा");
    });
}

TEST_F(TextFieldTest, WhatComesInHoldsForTheFieldsOfAllScreens)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "राम"), "rama");
        FieldScreen<TextField>* other = nullptr;
        Do([&other] {
            FieldScreen<TextField> screen(Make);
            other = &screen;
            screen.ShowModal();
        });
        ASSERT_NE(other, nullptr);
        Type("-");
        EXPECT_EQ(Seen(*other->field), "-");
        Do([&other] { other->Close(); });
    });
}

TEST_F(TextFieldTest, InDevanagariASignThatHasNoPlaceIsNotTaken)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Composed(field, "राम"), "rama");
        int changes = 0;
        field.Change = [&] { ++changes; };
        Type("^a");
        for (const char* sign : {"{&}", "{+}", "*", "#", "_", "$"})
            Type(sign);
        EXPECT_EQ(Text(field), "rama");
        EXPECT_EQ(Selected(field), "राम");
        EXPECT_EQ(changes, 0);
        Type("{End}1 2");
        EXPECT_EQ(Text(field), "rama1 2") << "blanks and digits are taken";
        EXPECT_EQ(Composed(field, "राम & श्याम"), "rama  Syaama");
        EXPECT_EQ(Composed(field, "राम"), "rama");
        Type("{{}{}}");
        EXPECT_EQ(Seen(field), "राम{}") << "braces have their codes";
    });
}

TEST_F(TextFieldTest, BackspaceInTheMiddleNeverReshapesWhatStandsBehind)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "ixatIja", "{Home}{Right}{BS}"), "tIja") << "क्षि|तीज";
        EXPECT_EQ(Line(field).cursorPosition(), 0);
        EXPECT_EQ(After(field, "ikma", "{Left}{BS}"), "ma");
        EXPECT_EQ(After(field, "rag`ama", "{Left}{BS}"), "rama") << "no half form is left before a letter";
        EXPECT_EQ(After(field, "saaoka", "{Left}{BS}"), "saka") << "a sign goes alone as ever";
    });
}

TEST_F(TextFieldTest, BackspaceAnywhereInAnyNameLeavesTheRestAsItIs)
{
    WithText([&](TextField& field) {
        for (const char* stored : {"ixatIja", "&aanaoSvar", "saMQyaakaL", "maa^Q`aI", "ip`MT", "sad\\gau$",
                 "raYT/Iya naO?-%ya", "\xC3\xA1yaa (Ea) ikma-Na"}) {
            const QString whole = Shivaji01::ToUnicode(Q(stored));
            for (int step = 1, caret = 0; caret < whole.size(); ++step) {
                std::string keys = "{Home}";
                for (int i = 0; i < step; ++i)
                    keys += "{Right}";
                After(field, stored, keys.c_str());
                caret = Line(field).cursorPosition();
                Type("{BS}");
                EXPECT_LT(field.Seen().size(), whole.size()) << stored << ' ' << step;
                EXPECT_TRUE(field.Seen().endsWith(whole.sliced(caret)))
                    << stored << ' ' << step << ' ' << Seen(field);
            }
        }
    });
}

TEST_F(TextFieldTest, ASignAloneJoinsTheSyllableBeforeIt)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(AfterComposing(field, "rak", "ि"), "raik");
        EXPECT_EQ(Seen(field), "राकि");
        EXPECT_EQ(AfterComposing(field, "ga", "ा"), "gaa");
        EXPECT_EQ(AfterComposing(field, "sa", "ं"), "saM");
        Do([&] { field.Clear(); });
        Compose("ि");
        EXPECT_EQ(Seen(field), "ि");
    });
}

TEST_F(TextFieldTest, AConjunctIsPutTogetherSignBySign)
{
    WithText([&](TextField& field) {
        for (const char* part : {"स", "्", "थ", "ा", "न", "ि", "क"})
            Compose(part);
        EXPECT_EQ(Seen(field), "स्थानिक");
        EXPECT_EQ(Text(field), Shivaji01::FromUnicode(u"स्थानिक").toStdString());
    });
}

TEST_F(TextFieldTest, AJoinerIsNotLost)
{
    WithText([&](TextField& field) {
        for (const char* part : {"र", "्", "\xE2\x80\x8D", "य", "ा"})
            Compose(part);
        EXPECT_EQ(Text(field), Shivaji01::FromUnicode(Q("र्\xE2\x80\x8Dया")).toStdString());
    });
}

TEST_F(TextFieldTest, WhatStandsBeforeTheCaretKeepsItsOwnSpelling)
{
    WithText([&](TextField& field) {
        // The comma has two codes; only one of them is the canonical spelling.
        EXPECT_EQ(AfterComposing(field, "rama\xC3\x8A", "क"), "rama\xC3\x8Ak");
        EXPECT_EQ(AfterComposing(field, "XaaMta", "क"), "XaaMtak")
            << "a second spelling of the same half form";
    });
}

TEST_F(TextFieldTest, AnInputMethodReplacesTheSelectionWithOneChange)
{
    WithText([&](TextField& field) {
        Type("rama^a");
        int changes = 0;
        Do([&] { field.Change = [&] { ++changes; }; });
        Compose("गाय");
        EXPECT_EQ(Text(field), "gaaya");
        EXPECT_EQ(changes, 1);
    });
}

TEST_F(TextFieldTest, WhatIsStillBeingComposedIsShownButNotHeld)
{
    WithText([&](TextField& field) {
        Type("rama");
        Compose("", "क");
        EXPECT_EQ(Text(field), "rama");
        EXPECT_EQ(Line(field).displayText().toStdString(), "राम");
        Compose("कर");
        EXPECT_EQ(Text(field), "ramakr");
        Compose("", "ग");
        Compose("");
        EXPECT_EQ(Text(field), "ramakr") << "a composition that was given up";
    });
}

TEST_F(TextFieldTest, ACompositionBegunOverASelectionReplacesIt)
{
    WithText([&](TextField& field) {
        Type("rama^a");
        Compose("", "क");
        EXPECT_EQ(Text(field), "");
        Compose("क");
        EXPECT_EQ(Text(field), "k");
    });
}

TEST_F(TextFieldTest, PastingDevanagariAndKeys)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(Pasted(field, "सकाळ"), "sakaL");
        EXPECT_EQ(Pasted(field, "sakaL"), "sakaL");
        EXPECT_EQ(Pasted(field, "राम\nगाय\t"), "ramagaaya") << "a field has one line";
        EXPECT_EQ(Pasted(field, ""), "");
    });
}

TEST_F(TextFieldTest, CopyingAndPastingReadsTheSame)
{
    WithText([&](TextField& field) {
        EXPECT_EQ(After(field, "saMQyaakaL", "^a^c"), "saMQyaakaL");
        Do([] { EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "संध्याकाळ"); });
        Type("^v^v");
        EXPECT_EQ(Text(field), "saMQyaakaLsaMQyaakaL");
    });
}

TEST_F(TextFieldTest, AThousandCharactersAreHeldAndEdited)
{
    WithText([&](TextField& field) {
        std::string keys;
        for (int i = 0; i < 200; ++i)
            keys += "gaaya";
        EXPECT_EQ(Pasted(field, keys.c_str()), keys);
        Type("{Left}{BS}{Home}ka{Right}{DEL}{End}Q");
        EXPECT_EQ(Text(field), "ka" + keys.substr(0, 3) + keys.substr(5, 992) + "yaQ");
    });
}

TEST_F(TextFieldTest, AThousandKeysInARow)
{
    WithText([&](TextField& field) {
        const std::string keys(1000, 'k');
        Type(keys.c_str());
        EXPECT_EQ(Text(field), keys);
    });
}

TEST_F(TextFieldTest, OnlyAcceptedCharactersAreTaken)
{
    WithText([&](TextField& field) {
        Do([&] { field.Accepts = [](QChar c) { return !c.isDigit() && c != u'\''; }; });
        EXPECT_EQ(Typed(field, "ra1m'a2"), "rama");
        EXPECT_EQ(Typed(field, "१रा"), "ra");
        EXPECT_EQ(Pasted(field, "ra'ma 5"), "rama ");
        EXPECT_EQ(Composed(field, "५"), "");
    });
}

TEST_F(TextFieldTest, NothingLongerThanItsLengthIsTaken)
{
    WithText([&](TextField& field) {
        Do([&] { field.SetMaxLength(5); });
        EXPECT_EQ(Typed(field, "gaayama"), "gaaya");
        EXPECT_EQ(AfterComposing(field, "gaaya", "म"), "gaaya");
        EXPECT_EQ(After(field, "gaaya", "^arama"), "rama");
        EXPECT_EQ(After(field, "ramaramaba", "{BS}"), "ramarama") << "a longer one can still be shortened";
    });
}

TEST_F(TextFieldTest, KeysWithCtrlOrAltAreNoLetters)
{
    WithText([&](TextField& field) { EXPECT_EQ(Typed(field, "r^z^x%q^bk"), "rk"); });
}

TEST_F(TextFieldTest, ChangesByTheClerkAreToldAndNoneByTheScreen)
{
    WithText([&](TextField& field) {
        int changes = 0;
        Do([&] { field.Change = [&] { ++changes; }; });
        Type("ga{Left}{Right}{BS}");
        EXPECT_EQ(changes, 3);
        Do([&] { field.SetText("rama"); });
        EXPECT_EQ(changes, 3);
    });
}

TEST_F(TextFieldTest, TheMouseSetsTheCaretBetweenSyllables)
{
    WithText([&](TextField& field) {
        Do([&] { field.SetText("saMQyaakaL"); });
        ClickBehind(field, 2);
        EXPECT_EQ(After(field, "saMQyaakaL", ""), "saMQyaakaL");
        ClickBehind(field, 3);
        EXPECT_EQ(Line(field).cursorPosition(), 2) << "never inside one";
        ClickBehind(field, 5);
        EXPECT_EQ(Line(field).cursorPosition(), 6);
        Type("k");
        EXPECT_EQ(Text(field), "saMQyaakkaL");
    });
}

TEST_F(TextFieldTest, TheMiddleButtonPastesNothingBehindTheFieldsBack)
{
    WithText([&](TextField& field) {
        Type("rama");
        Do([&] {
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, QPointF(2, 2), Line(field).mapToGlobal(QPointF(2, 2)),
                    Qt::MiddleButton, Qt::NoButton, Qt::NoModifier);
                EXPECT_TRUE(static_cast<QObject&>(field.Owner()).eventFilter(&Line(field), &event));
            }
        });
    });
}

}

TEST_F(TextFieldTest, ACodeWithoutAKeyIsTypedAsItsNumberWithAlt)
{
    WithText([this](TextField& field) {
        EXPECT_EQ(After(field, "nasaNaa", "%0%2%2%5yaa"), "nasaNaa\xC3\xA1yaa") << "the eyelash ra";
        EXPECT_EQ(Seen(field), "नसणाऱ्या");
        EXPECT_EQ(After(field, "", "Ta%0%1%5%4p"), "Ta\xC5\xA1p");
        EXPECT_EQ(After(field, "k", "%0%2a"), "ka") << "a number left unfinished stands for nothing";
        EXPECT_EQ(After(field, "k", "%9%9%9%9a"), "ka") << "nor does one without a code";
    });
}

TEST_F(TextFieldTest, TheFirstPressOfTheMouseSelectsItAllAndTheNextSetsTheCaret)
{
    WithText([&](TextField& field) {
        for (const char* before : {"{TAB}", "{TAB}+{TAB}{Home}"}) {
            Do([&] { field.SetText("rama"); });
            Type(before);
            TheClerk.Press("txtMemberName");
            EXPECT_EQ(Selected(field), "राम") << "after " << before;
            TheClerk.Press("txtMemberName");
            EXPECT_EQ(Selected(field), "") << "after " << before;
            TheClerk.Press("next");
            TheClerk.Press("txtMemberName");
            Type("k");
            EXPECT_EQ(Text(field), "k") << "after " << before;
        }
    });
}
