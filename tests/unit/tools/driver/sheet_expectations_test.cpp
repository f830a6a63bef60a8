// What a person sees of a report sheet, through the controls and through the widgets: each expectation holds
// where it should, and says what it found where it does not.
#include <QtGlobal>

#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"
#include "tools/driver/window_player.h"

static void InitTestForms() {
  Q_INIT_RESOURCE(test_forms);
}

namespace ovindra::driver {
namespace {

struct SheetExpectation {
  const char* holds;
  const char* fails;
  const char* report;
};

constexpr SheetExpectation kExpectations[] = {
    {R"(cell 5 2 "Name")", R"(cell 5 2 "name")", R"(cell 5 2 "name", found "Name")"},
    {"cell 6 2 empty", "cell 5 2 empty", R"(cell 5 2 empty, found "Name")"},
    {"cell 5000 900 empty", "cell 0 1 empty", "rows and columns from 1, found 0"},
    {R"(cell 3 1 contains "01/04/2016")", R"(cell 3 1 contains "LIST")",
     R"(cell 3 1 contains "LIST", found "List of children From : 01/04/2016")"},
    {"cell 5 2 font 10 bold underline colour 16711935", "cell 5 2 font 10 plain",
     "cell 5 2 font 10 plain, found font 10 bold underline colour 16711935"},
    {"cell 6 2 font 15 plain italic", "cell 6 2 font 14",
     "cell 6 2 font 14, found font 15 plain italic colour 0"},
    {"cell 3 1 font colour 0", "cell 3 1 font colour 255",
     "cell 3 1 font colour 255, found font 10 plain colour 0"},
    {"cell 5 2 align centre wrapped middle", "cell 5 2 align left",
     "cell 5 2 align left, found centre wrapped middle"},
    {"cell 3 1 align general", "cell 3 1 wrapped", "cell 3 1 align wrapped, found general"},
    {"cell 5 2 border", "cell 5 2 no border", "cell 5 2 no border, found a border left right top bottom"},
    {"cell 3 1 no border", "cell 6 2 border", "cell 6 2 border, found a border left top"},
    {"cell 6 3 no border", "cell 6 3 border", "cell 6 3 border, found no border"},
    {"column 2 width 20000", "column 2 width 19999", "column 2 width 19999, found 20000"},
    {"column 1 width 2304", "column 900 width 1", "column 900 width 1, found 2304"},
    {"print gridlines off", "print headings off", "print headings off, found headings on"},
    {"print margin left 0", "print margin top 0", "print margin top 0, found margin top 1"},
    {"print margin right 0.75", R"(print header "x")", R"(print header "x", found header "")"},
    {R"(print footer "&C & Page &P")", R"(print footer "")",
     R"(print footer "", found footer "&C & Page &P")"},
};

/// Each row's two lines on a report that was built and printed.
void Check(const WindowPlayerMaker& on_windows) {
  std::string lines = "open frmsheet\nclick Command1\nclick Command2\nexpect printed\nexpect print centred";
  Lines reports;
  int line = 5;
  for (const SheetExpectation& row : kExpectations) {
    lines += std::string("\nexpect ") + row.holds + "\nexpect " + row.fails;
    reports.push_back(std::to_string(line += 2) + ": expected " + row.report);
  }
  EXPECT_EQ(Failures(lines, on_windows), reports);
}

TEST(SheetExpectations, HoldAndFailOnTheControls) {
  Check({});
}

TEST(SheetExpectations, HoldAndFailOnTheWidgets) {
  InitTestForms();
  Check(MakeWindowPlayer);
}

TEST(SheetExpectations, NeedASheetAndAPrint) {
  EXPECT_EQ(Failures("open frmDesk\nexpect cell 1 1 empty\nexpect print centred"),
            (Lines{"2: expected a report sheet, found none on frmDesk",
                   "3: expected print centred, found nothing printed"}));
}

}  // namespace
}  // namespace ovindra::driver
