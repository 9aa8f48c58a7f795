#include "common/OptionFields.h"

#include "common/SettingDefaults.h"

namespace morvane::common {
namespace {

using K = OptionKind;

constexpr OptionField kFields[] = {
    {"ComPort", "optComPort", "1", K::Port},
    {"EditorLeft", "txtEditorLeft", "0", K::Measure, "labEditorLeft", "Editor Left"},
    {"EditorTop", "txtEditorTop", "0", K::Measure, "labEditorTop", "Editor Top"},
    {"EditorWidth", "txtEditorWidth", "6", K::Measure, "labEditorWidth", "Editor Width"},
    {"EditorHeight", "txtEditorHeight", "4", K::Measure, "labEditorHeight", "Editor Height"},
    {"GridSpacing", "txtGridSpacing", "1", K::Measure, "labGridSpacing", "Grid Spacing"},
    {"ReferenceLength", "txtReferenceLength", ".020", K::Measure, "labReferenceLength", "Reference Length"},
    {"Color0", "picColor0", kColorDefaults[0], K::Color},
    {"Color1", "picColor1", kColorDefaults[1], K::Color},
    {"Color2", "picColor2", kColorDefaults[2], K::Color},
    {"Color3", "picColor3", kColorDefaults[3], K::Color},
    {"Color4", "picColor4", kColorDefaults[4], K::Color},
    {"Color5", "picColor5", kColorDefaults[5], K::Color},
    {"LineWidth", "txtLineWidth", "2", K::Text},
    {"BackgroundImage", "cmbBackground", "", K::List},
    {"BackgroundImageX", "txtImageX", "0", K::Measure, "labImageX", "Image X pos"},
    {"BackgroundImageY", "txtImageY", "0", K::Measure, "labImageY", "Image Y pos"},
    {"BackgroundImageWidth", "txtImageWidth", "2", K::Measure, "labImageWidth", "Image Width"},
    {"BackgroundImageHeight", "txtImageHeight", "2", K::Measure, "labImageHeight", "Image Height"},
    {"UseImageSize", "chkUseImageSize", "0", K::Flag},
    {"DontDownloadImages", "chkDontDownloadImages", "0", K::Flag},
    {"Fixture", "cmbFixture", "", K::List},
    {"Units", "txtUnits", "in", K::Text},
    {"UnitsFormat", "txtUnitsFormat", "0.000", K::Text},
    {"DefaultTextSize", "txtDefaultTextSize", ".125", K::Text},
    {"PromptMove", "chkPromptMove", "1", K::Flag},
    {"EnableProduction", "chkEnableProduction", "0", K::Flag},
    {"ProductionFile", "cmbProduction", "", K::List},
    {"DownloadAsTJB", "chkDownloadAsTJB", "0", K::Flag},
    {"ProFonts", "chkProFonts", "0", K::Flag},
};

}  // namespace

std::span<const OptionField> OptionFields() {
  return kFields;
}

}  // namespace morvane::common
