// What a person does: each step does its work on the controls, and what a person can't do fails.
#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"

namespace ovindra::driver {
namespace {

/// Steps that are to hold, each set on a freshly opened form.
class Holds : public testing::TestWithParam<const char*> {};

TEST_P(Holds, OnAFreshForm) {
  EXPECT_EQ(Failures(std::string("open frmDesk\n") + GetParam()), Lines{});
}

INSTANTIATE_TEST_SUITE_P(
    Typing, Holds,
    testing::Values(  // each key passes the filter; a maximum length stops typing and cuts a paste
        "type Text1 \"abcdefg\"\nexpect Text1 \"ABCDE\"",
        "type Text1 \"ab\"\ntype Text1 \"c d\"\nexpect Text1 \"ABC D\"",
        "paste Text1 \"abcdefg\"\nexpect Text1 \"abcde\"",
        "type Text1 \"a\"\npaste Text1 \"b\"\nexpect Text1 \"Ab\"",
        // typed over what the form has selected as the box took the focus
        "type Text4 \"old\"\nfocus Text2\ntype Text4 \"new\"\nexpect Text4 \"new\"",
        "type Text4 \"old\"\nfocus Text2\npaste Text4 \"new\"\nexpect Text4 \"new\"",
        "type Text2 \"abc\"\nclear Text2\nexpect Text2 \"\"", "type Combo2 \"RAM\"\nexpect Combo2 \"RAM\"",
        "type Combo2 \"x\"\nclear Combo2\nexpect Combo2 \"\"", "type Combo1 \"RAM\"\nexpect Combo1 \"\"",
        "type Text2 \"ab\"\npress Text2 Backspace\nexpect Text2 \"a\"",
        "press Text2 \"é\"\nexpect Text2 \"é\"",
        // what is typed behind a Tab goes to the box that has the focus then
        "type Text1 \"a\\tb\"\nexpect Text1 \"A\"\nexpect Text2 \"b\""));

INSTANTIATE_TEST_SUITE_P(
    Focus, Holds,
    testing::Values(
        "focus Text2\nexpect focus Text2\nleave Text2\nexpect focus Text4\nexpect Log \"lost \"",
        "press Text1 Tab\nexpect focus Text2",
        "click Label1\nexpect Log \"label \"\nfocus Text2\nclick Label1\nexpect focus Text2",
        // a validate step that keeps the focus prevents the action, and that is no failure
        "type Text1 \"bad\"\nclick Command5\nexpect focus Text1\nexpect no message",
        "type Text1 \"bad\"\ntype Text2 \"x\"\nexpect Text2 \"\"\npick Combo1 \"RAM\"\nexpect Combo1 \"\"",
        "type Text1 \"bad\"\npick Combo1 \"NOBODY\"\nexpect focus Text1",
        "type Text1 \"bad\"\nleave Text1\nexpect focus Text1",
        "press form F8\nexpect Frame1 enabled\npress Text1 F8\nexpect Frame1 disabled"));

INSTANTIATE_TEST_SUITE_P(
    Choosing, Holds,
    testing::Values(
        "pick Combo1 \"ASHA\"\npick Combo1 \"ASHA\"\nexpect Combo1 \"ASHA\"\nexpect Log \"combo combo \"",
        "pick List1 \"ASHA\"\npress List1 Down\nexpect List1 \"RAM\"",
        "pick List1 \"RAM\"\ndouble-click List1\nexpect Log \"list list list-twice \"",
        "press List1 Enter\npress List1 \"x\"\nexpect Log \"key key \"",
        "press form F8\nchoose Option2\nchoose Option2\nexpect Option2 on\nexpect Log \"option \"",
        "press form F8\nclick Option1\nexpect Option1 on\nchoose Option2\nexpect Option1 off",
        "tick Check1\ntick Check1\nexpect Check1 on\nuntick Check1\nexpect Check1 off\n"
        "click Check1\nexpect Check1 on\nexpect Log \"check check check \"",
        "tab TabStrip1 \"Two\"\nexpect TabStrip1 \"Two\"\nexpect Log \"tab \"",
        "date DTPicker1 02/29/2016\nexpect DTPicker1 \"02/29/2016\"\nexpect Log \"date \"",
        "day MonthView1 06/01/2016\nexpect MonthView1 \"06/01/2016\"\nexpect Log \"day \""));

INSTANTIATE_TEST_SUITE_P(Grids, Holds,
                         testing::Values("click Grid1 row 2 column 1\nexpect Log \"moved grid \"",
                                         "click Grid1 row 1\nexpect Log \"grid \"",
                                         "click Grid1 row 0\nexpect Log \"\"",
                                         "move Grid1 row 2\nexpect Log \"moved \"",
                                         "press Grid1 Down\nexpect Log \"moved \"",
                                         "double-click Grid1 row 0 column 1\nexpect Log \"grid-twice \"",
                                         "double-click Grid1 row 2\nexpect Log \"moved grid grid-twice \""));

INSTANTIATE_TEST_SUITE_P(
    Windows, Holds,
    testing::Values(
        "tick-timer Timer1 3\nexpect Log \"tick tick tick \"",
        "press form F8\nclick Command3\nexpect closed frmDesk\nopen frmDesk\nexpect Frame1 disabled",
        "close-window\nexpect closed frmDesk\nexpect caption \"MAIN\"",
        "form MDIForm1\nclick m1(1)\nexpect caption \"The &Desk\"\nclick MNUEXIT\nexpect calculator",
        // the steps go back to the form that was current before
        "form MDIForm1\nform frmdesk\nclick Command3\nexpect caption \"MAIN\""));

struct Impossible {
  const char* step;
  const char* report;
};

class CannotBeDone : public testing::TestWithParam<Impossible> {};

TEST_P(CannotBeDone, AndIsReported) {
  EXPECT_EQ(Failures(std::string("open frmDesk\n") + GetParam().step), Lines{GetParam().report})
      << GetParam().step;
}

INSTANTIATE_TEST_SUITE_P(
    Steps, CannotBeDone,
    testing::Values(
        Impossible{"click Option1", "2: expected Option1 enabled, found disabled"},
        Impossible{"choose Option1", "2: expected Option1 enabled, found disabled"},
        Impossible{"click Hidden1", "2: expected Hidden1 visible, found hidden"},
        Impossible{"click m1(0)", "2: expected m1(0) enabled, found disabled"},
        Impossible{"click Text9", "2: expected Text9, found no such control on frmDesk"},
        Impossible{"open frmNone", "2: expected a form frmNone, found none of that name"},
        Impossible{"form frmlogin", "2: expected frmlogin open, found not open"},
        Impossible{"pick Combo1 \"NOBODY\"",
                   "2: expected an entry \"NOBODY\" in Combo1, found 3 entries without it"},
        Impossible{"pick List1 \"asha\"",
                   "2: expected an entry \"asha\" in List1, found 3 entries without it"},
        Impossible{"pick Text1 \"A\"",
                   "2: expected Text1 to be a combo box or list, found a control of another kind"},
        Impossible{"type Command1 \"a\"",
                   "2: expected Command1 to be a box, found a control of another kind"},
        Impossible{"paste Combo1 \"a\"",
                   "2: expected Combo1 to be a box that takes a text, found a list to pick from"},
        Impossible{"clear Combo1",
                   "2: expected Combo1 to be a box that takes a text, found a list to pick from"},
        Impossible{"focus Label1", "2: expected Label1 to take the focus, found it takes none"},
        Impossible{"click Grid1 row 3", "2: expected Grid1 row 3, found 3 rows"},
        Impossible{"click Grid1 row 1 column 2", "2: expected Grid1 column 2, found 2 columns"},
        Impossible{"move Grid1 row 0", "2: expected Grid1 row 0 to move to, found a header row"},
        Impossible{"tab TabStrip1 \"Three\"", "2: expected a tab \"Three\" of TabStrip1, found no such tab"},
        Impossible{"tick Text1", "2: expected Text1 to be a check box, found a control of another kind"},
        Impossible{"click Command3\nform MDIForm1\nform frmDesk",
                   "4: expected frmDesk open, found not open"}));

TEST(Questions, TakeTheAnswersInOrder) {
  EXPECT_EQ(Failures("open frmDesk\nanswer yes\nanswer no\n"
                     "click Command1\nexpect message \"Sure?\"\nexpect Log \"yes\"\n"
                     "click Command1\nexpect message \"Sure?\"\nexpect Log \"no\""),
            Lines{});
}

TEST(Questions, WithoutAnAnswerFailAndAreAnsweredNo) {
  EXPECT_EQ(Failures("open frmDesk\nclick Command1\nexpect message \"Sure?\" question\nexpect Log \"no\""),
            Lines{"2: expected an answer given ahead to \"Sure?\" title \"OVD\" question, found none"});
}

TEST(ActionsThatFail, LeaveTheNextLinesPlayed) {
  EXPECT_EQ(Failures("open frmDesk\nclick Hidden1\ntype Text1 \"a\"\nexpect Text1 \"B\""),
            (Lines{"2: expected Hidden1 visible, found hidden", "4: expected Text1 \"B\", found \"A\""}));
}

}  // namespace
}  // namespace ovindra::driver
