// The property grid: rows from lines, lines from rows, and what a commit brings with it.
#include <gtest/gtest.h>

#include <array>

#include "common/RunTimeError.h"
#include "support/BaseStation.h"
#include "textjob/edit/CommitLine.h"
#include "textjob/edit/RowEditors.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

class PropertyGridTest : public testing::Test, public test::BaseStation {
 protected:
  // A job of these lines with these selected.
  void Make(const std::vector<std::string>& lines, const std::string& selection) {
    job_.Lines = lines;
    job_.Selection = selection;
  }
  std::string Show() {
    std::string text;
    for (const PropertyRow& row : RowsOfSelection(job_, context_)) text += row.label + '=' + row.value + '|';
    return text;
  }
  // Commits a value to the row of that label.
  void Commit(const std::string& label, const std::string& value) {
    PropertyGrid rows = RowsOfSelection(job_, context_);
    const std::size_t row = FindRow(rows, label);
    ASSERT_LT(row, rows.size()) << label;
    CommitLine(job_, rows, row, value, context_, files);
    EXPECT_TRUE(job_.Dirty);
  }
  void Put(const std::string& name, const std::string& bytes = "") { disk.Put("/base/" + name, bytes); }

  RowContext context_;
  TextJob job_;
};

const std::string kTail = ",0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0";

TEST_F(PropertyGridTest, RowsOfEachType) {
  const std::string place = "X pos=1.500|Y pos=2.000|";
  const std::string tool = "Tool #=3|Depth=0.500|";
  const std::string path = "Scale X=2.5|Scale Y=3.|Rotate=45.|";
  const std::string text = "Font=FONT1|Height=0.125|Compress=0.75|Style=Regular|Justify=Center|";
  // The same fields on a line of each type.
  const std::string head = ",1.5,2,.125,font1.fnt,0,5,0,0,";
  const std::string tail = "@@,.75,2,3,.5,1,Ask@@,2.5,3,45,0,1,2,3,4,5,1,4,.1,.2,.3";
  const std::array<std::string, 3> cases[] = {
      {"0", "Text a", "Text=Text a|Type=Normal|" + text + place + tool},
      {"1", "7", "Serial=7|Incr=5|Type=Serial|" + text + place + tool},
      {"2", "logo.job", "Graphic=LOGO|Type=Graphic|Compress=0.75|" + place + tool},
      {"3", "MM", "DateCode=MM|Type=DateCode|" + text + place + tool},
      {"4", "", "Type=Move|" + place + tool},
      {"5", "p.pan", "Panel=P|Type=Panel|" + place + tool},
      {"6", "d.dm", "Data Matrix=D|Type=Data Matrix|" + place + tool},
      {"7", "f.fil", "Fill=F|Type=Fill|" + place + tool},
      {"8", "v", "Text=v|Prompt=Ask|Type=Variable|" + text + place + tool},
      {"9", "i.job", "Image=I|Type=Image|" + path + place + tool},
      {"10", "Cap a", "Cap=Cap a|Type=Cap|" + place + tool},
      {"11", "Sca", "Scale=Sca|Type=Scale|" + place + tool},
      {"12", "", "Type=Start Position|" + place + "Depth=0.500|"},
      {"13", "c.job",
       "Closed Path=C|Type=Closed Path|" + path + place + tool +
           "Late Start=1.|Late End=2.|Early Shut=3.|Overlap=4.|Overlap Ht=5.|"},
      {"14", "low.pre", "Pressure=LOW|Type=Pressure|" + place + tool},
      {"15", "park.job", "Park Path=PARK|Type=Park Path|"},
      {"16", "r.ras",
       "Raster=R|Type=Raster|" + place + "Keep Ratio=Yes|Width=4.000|Height=0.125|DPI Width=100|" +
           "DPI Height=1600|Margin=0.100|Backlash=0.200|" + tool}};
  context_.imageSize = [](const std::string& name) {
    return name == "R.RAS" ? std::optional(PixelSize{400, 200}) : std::nullopt;
  };
  for (const auto& [type, name, rows] : cases) {
    Make({type + head + name + tail}, "0");
    EXPECT_EQ(Show(), rows);
  }
  // By style, with sides, with pro fonts, with a second depth.
  const std::string font = "Text=x|Type=Normal|Font=F|Height=1.000|Compress=1.|Style=";
  const std::string rest =
      "X pos=0.000|Y pos=0.000|Side=2.|Width=0.250|Spacing=0.500|Tool #=1|Depth=0.000M0.500|";
  context_.sides = true;
  context_.proFonts = true;
  for (const auto& [style, rows] : {std::pair{"0", "Regular|Justify=Left|"},
                                    {"1", "ArcText|Angle=-90.5|Radius=2.000|"},
                                    {"2", "Angular|Angle=-90.5|"},
                                    {"3", "RadiusText|Angle=-90.5|Radius=2.000|Location=Inside|"}}) {
    Make({std::string("0,0,0,1,F.fnt,") + style + ",0,-90.5,2,x@@,,2,,M.5,0,@@,,,,1,,,,,,,.25,,,.5"}, "0");
    EXPECT_EQ(Show(), font + rows + rest);
  }
}

TEST_F(PropertyGridTest, SeveralLinesShowWhatTheyShare) {
  const std::string normal = "0,1,2,.5,A.fnt,0,0,0,0,one@@,2";
  const std::string arc = "8,3,4,1,B.fnt,1,0,90,1,two@@,3";
  const std::string graphic = "2,5,6,0,.fnt,0,0,0,0,L.job@@,4";
  const std::string park = "15,0,0,0,.fnt,0,0,0,0,P.job@@";
  const std::string placed = "X pos=1.000|Y pos=2.000|Tool #=1|Depth=0.000|";
  Make({normal, arc, graphic, park, normal}, "2,0");
  EXPECT_EQ(Show(), "Compress=2.|" + placed);
  job_.Selection = "1,0,1";
  EXPECT_EQ(Show(), "Text=one|Font=A|Height=0.500|Compress=2.|Style=Regular|" + placed);
  job_.Selection = "0,4";
  EXPECT_EQ(Show(),
            "Text=one|Type=Normal|Font=A|Height=0.500|Compress=2.|Style=Regular|Justify=Left|" + placed);
  job_.Selection = "0,3";
  EXPECT_EQ(Show(), "");
  job_.Selection = "";
  EXPECT_EQ(Show(), "");
}

TEST_F(PropertyGridTest, WordsBeyondTheirTableAreAFailure) {
  for (const char* line : {"17", "-1", "0,0,0,1,F,4", "0,0,0,1,F,-1", "0,0,0,1,F,0,0,0,0,x@@,1,1,1,0,3",
                           "0,0,0,1,F,3,0,0,0,x@@,1,1,1,0,0,@@,,,,2", "16,,,,,,,,,r@@,,,,,,@@,,,,,,,,,,2"}) {
    Make({"0,0,0,1,F", line}, "1");
    EXPECT_THROW(Show(), common::RunTimeError) << line;
    EXPECT_EQ(job_.Lines[1], line);
  }
}

// A full rewrite keeps nothing but what has a row; a patch keeps all but its field.
TEST_F(PropertyGridTest, OneLineIsBuiltFromItsRowsAndSeveralArePatched) {
  const std::string closed =
      "13,1,2,3,f.fnt,1,4,5,6,c.job@@,7,3,2,0.1M0.2,1,Ask@@,2,3,45,1,1.5,2,3,4,5,1,4,.1,.2,.3";
  const std::string kept = "@@,7,3,2,0.100M0.200,1,Ask@@,2,3,45,1,1.5,2,3,4,5,1,4,0.1,0.2,0.3";
  const std::string normal = "0,1,2,.5,A.fnt,0,0,0,0,one@@,2,3,4";
  using Case = std::tuple<std::string, bool, const char*, const char*, std::string>;
  for (const auto& [line, several, row, value, written] :
       {Case{normal, false, "Text", "a, b", "0,1,2,0.5,A.fnt,0,0,0,0,a, b@@,2,0,4,0.000" + kTail},
        Case{normal, true, "Text", "a, b",
             "0,1,2,0.5,A.FNT,0,0,0,0,a, b@@,2,3,4,0.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0"},
        Case{normal, false, "Font", "GOTHIC", "0,1,2,0.5,GOTHIC.fnt,0,0,0,0,one@@,2,0,4,0.000" + kTail},
        Case{closed, true, "X pos", "-1.25abc", "13,-1.25,2,3,F.FNT,1,4,5,6,C.JOB" + kept},
        Case{closed, false, "X pos", "-1.25abc",
             "13,-1.25,2,0,.fnt,0,0,0,0,C.job@@,0,0,2,0.100M0.200,0,@@,2,3,45,0,1.5,2,3,4,5,0,0,0,0,0"},
        Case{closed, true, "Closed Path", "D", "13,1,2,3,F.FNT,1,4,5,6,D.job" + kept},
        Case{"7,0,0,0,.fnt,0,0,0,0,F.fil@@", false, "Fill", "",
             "7,0,0,0,.fnt,0,0,0,0,@@,0,0,1,0.000" + kTail},
        Case{"10,0,0,0,.fnt,0,0,0,0,A@@", false, "Cap", "big.b",
             "10,0,0,0,.fnt,0,0,0,0,big.b@@,0,0,1,0.000" + kTail},
        Case{normal, true, "Style", "Wavy",
             "0,1,2,0.5,A.FNT,0,0,0,0,one@@,2,3,4,0.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0"},
        Case{"12,0,0", false, "Depth", "M0.5", "12,0,0,0,.fnt,0,0,0,0,@@,0,0,0,0.000M0.500" + kTail},
        Case{"4,0,0", false, "Depth", "0.25M", "4,0,0,0,.fnt,0,0,0,0,@@,0,0,1,0.250" + kTail},
        Case{"4,0,0", false, "Depth", "1MM2M3", "4,0,0,0,.fnt,0,0,0,0,@@,0,0,1,1.000" + kTail},
        Case{"4,0,0,0,,0,0,0,0,@@,,,,1M2", true, "Depth", "3",
             "4,0,0,0,,0,0,0,0,@@,1,1,1,3.000,0,@@,1,1,0,0,0,0,0,0,0,1,0,0,0,0"},
        Case{"4,0,0", false, "Tool #", "99999", "4,0,0,0,.fnt,0,0,0,0,@@,0,0,32767,0.000" + kTail}}) {
    Make({line, line, "4,0,0"}, several ? "0,1" : "0");
    Commit(row, value);
    EXPECT_EQ(job_.Lines[0], written) << row;
    EXPECT_EQ(job_.Lines[1], several ? written : line) << row;
    EXPECT_EQ(job_.Lines[2], "4,0,0");
  }
}

TEST_F(PropertyGridTest, AChangedTypeOrStyleBringsItsValues) {
  for (const char* name : {"b.FIL", "a.fil", "Z.JOB", "LOGO.JOB", "S.RAS"}) Put(name);
  const std::string normal = "0,1,2,.5,A.fnt,0,0,0,0,LOGO@@,2";
  const std::string place = "1,2,0.5,A.fnt,0,";
  using Case = std::tuple<std::string, const char*, const char*, std::string>;
  for (const auto& [line, row, value, written] :
       {Case{normal, "Type", "Fill", "7," + place + "0,0,0,A.fil@@,2,0,1,0.000" + kTail},
        Case{normal, "Type", "Graphic", "2," + place + "0,0,0,LOGO.job@@,2,0,1,0.000" + kTail},
        Case{"0,1,2,.5,A.fnt,0,0,0,0,b.FIL@@,2", "Type", "Fill",
             "7," + place + "0,0,0,b.fil@@,2,0,1,0.000" + kTail},
        Case{normal, "Type", "Panel", "5," + place + "0,0,0,@@,2,0,1,0.000" + kTail},
        Case{normal, "Type", "Cap", "10," + place + "0,0,0,LOGO@@,2,0,1,0.000" + kTail},
        Case{normal, "Type", "Serial", "1," + place + "1,0,0,1@@,2,0,1,0.000" + kTail},
        Case{normal, "Type", "Closed Path",
             "13," + place + "0,0,0,LOGO.job@@,2,0,1,0.000,0,@@,1,1,0,0,0,0,0,0,0,0,0,0,0,0"},
        Case{normal, "Type", "Normal", "0," + place + "0,0,0,LOGO@@,2,0,1,0.000" + kTail},
        Case{"4,1,2", "Type", "Image",
             "9,1,2,0,.fnt,0,0,0,0,LOGO.job@@,0,0,1,0.000,0,@@,1,1,0,0,0,0,0,0,0,0,0,0,0,0"},
        Case{"15,1,2,0,.fnt,0,0,0,0,Z.job@@", "Type", "Raster",
             "16,0,0,0,.fnt,0,0,0,0,S.ras@@,0,0,0,0.000" + kTail},
        Case{"9,1,2,0,.fnt,0,0,0,0,Z.job@@,,,,,,@@,2,3,45", "Type", "Closed Path",
             "13,1,2,0,.fnt,0,0,0,0,Z.job@@,0,0,1,0.000,0,@@,1,1,0,0,0,0,0,0,0,0,0,0,0,0"},
        Case{normal, "Style", "RadiusText", "0,1,2,0.5,A.fnt,3,0,90,1,LOGO@@,2,0,1,0.000" + kTail},
        Case{"0,1,2,.5,A.fnt,1,0,45,3,LOGO@@,2", "Style", "Angular",
             "0,1,2,0.5,A.fnt,2,0,0,0,LOGO@@,2,0,1,0.000" + kTail},
        Case{"0,1,2,.5,A.fnt,1,0,45,3,LOGO@@,2", "Style", "ArcText",
             "0,1,2,0.5,A.fnt,1,0,45,3,LOGO@@,2,0,1,0.000" + kTail}}) {
    Make({line}, "0");
    Commit(row, value);
    EXPECT_EQ(job_.Lines[0], written) << row << value;
  }
}

TEST_F(PropertyGridTest, ARasterKeepsItsProportion) {
  context_.imageSize = [](const std::string&) { return PixelSize{400, 200}; };
  const auto raster = [](const char* keep, const char* width, const char* height) {
    return std::string("16,0,0,") + height + ",.fnt,0,0,0,0,R.ras@@,0,0,1,0.000,0,@@,0,0,0,0,0,0,0,0,0," +
           keep + ',' + width + ",0,0,0";
  };
  using Case = std::tuple<std::string, const char*, const char*, std::string>;
  for (const auto& [line, row, value, written] :
       {Case{raster("1", "4", "1"), "Width", "3.5", raster("1", "3.5", "1.75")},
        Case{raster("1", "4", "1"), "Height", "3", raster("1", "6", "3")},
        Case{raster("0", "4", "1"), "Width", "3", raster("0", "3", "1")},
        Case{raster("0", "4", "1"), "Keep Ratio", "Yes", raster("1", "4", "2")},
        Case{raster("1", "4", "1"), "Keep Ratio", "No", raster("0", "4", "1")}}) {
    Make({line}, "0");
    Commit(row, value);
    EXPECT_EQ(job_.Lines[0], written) << row;
  }
  job_.Dirty = false;
  PropertyGrid rows = RowsOfSelection(job_, context_);
  CommitLine(job_, rows, FindRow(rows, "DPI Width"), "9", context_, files);
  EXPECT_FALSE(job_.Dirty) << "computed";
}

TEST_F(PropertyGridTest, StepsAndMoves) {
  using Case = std::tuple<const char*, const char*, float, const char*>;
  for (const auto& [row, value, step, sum] :
       {Case{"X pos", "1.500", 0.1F, "1.600"}, Case{"Angle", "90.", -1.F, "89."},
        Case{"Compress", "x", 0.5F, "0.5"}, Case{"Overlap Ht", "0.", 1.F, "1."},
        Case{"Depth", "1", 1.F, "none"}, Case{"Tool #", "1", 1.F, "none"}, Case{"Width", "1", 1.F, "none"},
        Case{"Text", "1", 1.F, "none"}}) {
    EXPECT_EQ(StepValue({row, value}, step, context_).value_or("none"), sum) << row;
  }
  context_.sides = true;
  Make({"4,1,2", "15,1,2"}, "0");
  MoveSelection(job_, {"3.000", "4.000", "2."}, context_, files);
  EXPECT_EQ(job_.Lines[0], "4,3,4,0,.fnt,0,0,0,0,@@,0,2,1,0.000" + kTail);
  job_.Selection = "1";
  MoveSelection(job_, {"3.000", "4.000", ""}, context_, files);
  EXPECT_EQ(job_.Lines[1], "15,1,2") << "no row for the position";
}

TEST_F(PropertyGridTest, EditorsAndTheirChoices) {
  for (const char* name : {"b.fil", "A.FIL", "L.JOB", "F.FNT", "D.DM", "P.PAN", "Q.PRE", "R.RAS"}) Put(name);
  Put("Default.cap", "Cap one,50,1\r\n\r\nCap two\r\n");
  using Case = std::tuple<const char*, RowEditorKind, std::vector<std::string>>;
  for (const auto& [label, kind, choices] :
       {Case{"Fill", RowEditorKind::List, {"", "A", "B"}},
        Case{"Cap", RowEditorKind::List, {"", "Cap one", "Cap two"}},
        Case{"Scale", RowEditorKind::List, {""}}, Case{"Pressure", RowEditorKind::List, {"", "Q"}},
        Case{"Panel", RowEditorKind::List, {"", "P"}}, Case{"Data Matrix", RowEditorKind::List, {"", "D"}},
        Case{"Raster", RowEditorKind::List, {"R"}}, Case{"Graphic", RowEditorKind::GcodeFile, {"L"}},
        Case{"Park Path", RowEditorKind::GcodeFile, {"L"}}, Case{"Font", RowEditorKind::List, {"F"}},
        Case{"Justify", RowEditorKind::List, {"Left", "Center", "Right"}},
        Case{"Keep Ratio", RowEditorKind::List, {"No", "Yes"}}, Case{"DPI Height", RowEditorKind::None, {}},
        Case{"Text", RowEditorKind::Text, {}}, Case{"X pos", RowEditorKind::Text, {}}}) {
    const RowEditor editor = RowEditorOf(label, files);
    EXPECT_EQ(editor.kind, kind) << label;
    EXPECT_EQ(editor.choices, choices) << label;
  }
  EXPECT_EQ(RowEditorOf("Type", files).choices.size(), 17U);
}

}  // namespace
}  // namespace morvane::textjob
