#include "app/menu/MenuTable.h"

#include "app/menu/MenuActions.h"

namespace morvane::app {
namespace {

constexpr Menu kMenus[] = {
    {"mnuFile", "&File"},
    {"mnuProduction", "&Production"},
    {"mnuGraphic", "&Graphic"},
    {"mnuRaster", "&Raster"},
    {"mnuQueue", "&Queue"},
    {"mnuDataMatrix", "&Data Matrix"},
    {"mnuFont", "F&ont"},
    {"mnuView", "&View"},
    {"mnuFixture", "Fi&xture"},
    {"mnuFill", "F&ill"},
    {"mnuCap", "&Cap"},
    {"mnuScale", "&Scale"},
    {"mnuPallet", "Pa&llet"},
    {"mnuPressure", "Pr&essure"},
    {"mnuPanel", "Pa&nel"},
    {"mnuTarget", "&Target"},
    {"mnuDataServer", "D&ata Server"},
    {"mnuRemote", "Re&mote"},
    {"mnuRemoteDiag", "Remote Diag"},
    {"mnuSetup", "Set&up"},
    {"mnuBackup", "&Backup"},
    {"mnuHelp", "&Help"},
};

using A = MenuActions;
constexpr auto kPlain = Kind::Plain;
constexpr auto kCheck = Kind::Check;
constexpr auto kDeveloper = Kind::Developer;
constexpr auto kAny = Needs::Nothing;
constexpr auto kJob = Needs::Job;
constexpr bool kLine = true;

// clang-format off
constexpr MenuEntry kEntries[] = {
    {"mnuFile", "mnuFileOpen", "&Open", "Ctrl+O", "Open a text job", &A::mnuFileOpen_Click},
    {"mnuFile", "mnuFileEdit", "&Edit", "Ctrl+E", "Show the text job editor", &A::mnuFileEdit_Click},
    {"mnuFile", "mnuFileOffset", "O&ffset", "", "Shift every line of the text job", &A::mnuFileOffset_Click, kJob},
    {"mnuFile", "mnuFileClose", "&Close", "", "Close the text job editor", &A::mnuFileClose_Click},
    {"mnuFile", "mnuFileSave", "&Save", "Ctrl+S", "Save the text job", &A::mnuFileSave_Click, kJob, kPlain, kLine},
    {"mnuFile", "mnuFileSaveAs", "Save &As...", "Ctrl+Shift+S", "Save the text job under another name", &A::mnuFileSaveAs_Click, kJob},
    {"mnuFile", "mnuFileDownload", "&Download", "", "Send a text job to the controller", &A::Download_Click<kTextJobs>, kAny, kPlain, kLine},
    {"mnuFile", "mnuFileVerify", "&Verify", "", "Compare text jobs here with those on the controller", &A::mnuFileVerify_Click},
    {"mnuFile", "mnuFileUpload", "&Upload", "", "Fetch text jobs from the controller", &A::Upload_Click<kTextJobs>},
    {"mnuFile", "mnuFilePrint", "&Print", "Ctrl+P", "Print the text job", nullptr, kAny, kPlain, kLine},
    {"mnuFile", "mnuFileExit", "E&xit", "Ctrl+Q", "Leave the program", &A::mnuFileExit_Click, kAny, kPlain, kLine},

    {"mnuProduction", "mnuProductionSelect", "&Select", "", "Choose a product of the production file"},
    {"mnuProduction", "mnuProductionManage", "&Manage", "", "Edit the production file"},

    {"mnuGraphic", "mnuGraphicDownload", "&Download", "", "Send a G-code job to the controller", &A::mnuGraphicDownload_Click},
    {"mnuGraphic", "mnuGraphicUpload", "&Upload", "", "Fetch a G-code job from the controller", &A::mnuGraphicUpload_Click},
    {"mnuGraphic", "mnuGraphicImport", "&Import", "", "Make a G-code job from a vector drawing", nullptr, kAny, kPlain, kLine},
    {"mnuGraphic", "mnuGraphicOptimize", "&Optimize", "", "Shorten the rapid moves of a G-code job"},
    {"mnuGraphic", "mnuGraphicGenerate", "&Generate", "", "Make a G-code job from a pattern"},
    {"mnuGraphic", "mnuGraphicView", "&View", "Ctrl+G", "Show a G-code job", &A::mnuGraphicView_Click, kAny, kPlain, kLine},
    {"mnuGraphic", "mnuGraphicEditCode", "&Edit Code", "", "Edit a G-code job as text and drawing"},
    {"mnuGraphic", "mnuGraphicNewCode", "&New Code", "", "Begin a new G-code job"},
    {"mnuGraphic", "mnuGraphicJogAndTeach", "&Jog and Teach Viewer", "", "Build a G-code job with the machine"},
    {"mnuGraphic", "mnuGraphicCheckMeasurements", "&Check Measurements", "", "Compare measured points with their limits", nullptr, kAny, kPlain, kLine},
    {"mnuGraphic", "mnuGraphicRunGCode", "&Run G-Code", "", "Send single G-code lines to the controller"},
    {"mnuGraphic", "mnuGraphicOpenLastJob", "Open &TEXTJOB.JOB", "", "Show the last run of a text job as G-code", &A::mnuGraphicOpenLastJob_Click, kAny, kDeveloper, kLine},
    {"mnuGraphic", "mnuGraphicUploadLastJob", "U&pload TEXTJOB.JOB", "", "Fetch the last run of a text job as G-code and show it", &A::mnuGraphicUploadLastJob_Click},

    {"mnuRaster", "mnuRasterDownload", "&Download", "", "Send a raster file to the controller", &A::Download_Click<kRasters>},
    {"mnuRaster", "mnuRasterImport", "&Import", "", "Make a raster file from an image"},

    {"mnuQueue", "mnuQueueAdd", "&Add Job(s)", "", "Put jobs into the controller's queue"},
    {"mnuQueue", "mnuQueueView", "&View", "", "Show the controller's queue"},

    {"mnuDataMatrix", "mnuDataMatrixNew", "&New", "", "Make a new Data Matrix file"},
    {"mnuDataMatrix", "mnuDataMatrixEdit", "&Edit", "", "Edit a Data Matrix file"},
    {"mnuDataMatrix", "mnuDataMatrixDecode", "De&code", "", "Read a Data Matrix symbol from a picture"},
    {"mnuDataMatrix", "mnuDataMatrixDownload", "&Download", "", "Send a Data Matrix file to the controller", &A::Download_Click<kDataMatrix>, kAny, kPlain, kLine},
    {"mnuDataMatrix", "mnuDataMatrixUpload", "&Upload", "", "Fetch Data Matrix files from the controller", &A::Upload_Click<kDataMatrix>},

    {"mnuFont", "mnuFontDownload", "&Download", "", "Send a font to the controller", &A::Download_Click<kFonts>},
    {"mnuFont", "mnuFontUpload", "&Upload", "", "Fetch fonts from the controller", &A::Upload_Click<kFonts>},
    {"mnuFont", "mnuFontView", "&View", "", "Look at the characters of a font", &A::mnuFontView_Click, kAny, kPlain, kLine},
    {"mnuFont", "mnuFontEdit", "&Edit", "", "Edit the characters of a font"},
    {"mnuFont", "mnuFontCreate", "&Create", "", "Make a font from a G-code job"},

    {"mnuView", "mnuViewHistory", "&History", "", "Show what the machine has done"},
    {"mnuView", "mnuViewDetailedHistory", "&Detailed History", "", "Show what the machine has done, line by line"},
    {"mnuView", "mnuViewOptions", "&Options...", "", "Change the program's settings", &A::mnuViewOptions_Click, kAny, kPlain, kLine},
    {"mnuView", "mnuViewToolPath", "&Tool Path", "Ctrl+1", "Draw the moves between the marks", &A::mnuViewToolPath_Click, kAny, kCheck, kLine},
    {"mnuView", "mnuViewGridLines", "&Grid Lines", "Ctrl+2", "Draw the grid", &A::mnuViewGridLines_Click, kAny, kCheck},
    {"mnuView", "mnuViewReferenceMarks", "&Reference Marks", "Ctrl+3", "Draw a cross at each line's position", &A::mnuViewReferenceMarks_Click, kAny, kCheck},
    {"mnuView", "mnuViewBackgroundImage", "&Background Image", "Ctrl+4", "Draw the picture behind the job", &A::mnuViewBackgroundImage_Click, kAny, kCheck},
    {"mnuView", "mnuViewFixture", "&Fixture", "Ctrl+5", "Draw the fixture behind the job", &A::mnuViewFixture_Click, kAny, kCheck},
    {"mnuView", "mnuViewRefresh", "R&efresh", "F5", "Read the settings anew and draw the job", &A::mnuViewRefresh_Click, kAny, kPlain, kLine},

    {"mnuFixture", "mnuFixtureModify", "&Modify", "", "Edit a fixture"},
    {"mnuFixture", "mnuFixtureDownload", "&Download", "", "Send a fixture to the controller", &A::Download_Click<kFixtures>, kAny, kPlain, kLine},
    {"mnuFixture", "mnuFixtureUpload", "&Upload", "", "Fetch fixtures from the controller", &A::Upload_Click<kFixtures>},

    {"mnuFill", "mnuFillModify", "&Modify", "", "Edit a fill recipe"},
    {"mnuFill", "mnuFillEditPumps", "Edit &Pumps", "", "Edit the pumps that fills use"},
    {"mnuFill", "mnuFillDownload", "&Download", "", "Send a fill recipe to the controller", &A::Download_Click<kFills>, kAny, kPlain, kLine},
    {"mnuFill", "mnuFillUpload", "&Upload", "", "Fetch fill recipes from the controller", &A::Upload_Click<kFills>},

    {"mnuCap", "mnuCapModify", "&Modify", "", "Edit the caps"},
    {"mnuCap", "mnuCapDownload", "&Download", "", "Send the caps to the controller", &A::Download_Click<kCaps>, kAny, kPlain, kLine},
    {"mnuCap", "mnuCapUpload", "&Upload", "", "Fetch the caps from the controller", &A::Upload_Click<kCaps>},

    {"mnuScale", "mnuScaleModify", "&Modify", "", "Edit the scales"},
    {"mnuScale", "mnuScaleDownload", "&Download", "", "Send the scales to the controller", &A::Download_Click<kScales>, kAny, kPlain, kLine},
    {"mnuScale", "mnuScaleUpload", "&Upload", "", "Fetch the scales from the controller", &A::Upload_Click<kScales>},

    {"mnuPallet", "mnuPalletModify", "&Modify", "", "Edit a pallet"},
    {"mnuPallet", "mnuPalletDownload", "&Download", "", "Send a pallet to the controller", &A::Download_Click<kPallets>, kAny, kPlain, kLine},
    {"mnuPallet", "mnuPalletUpload", "&Upload", "", "Fetch pallets from the controller", &A::Upload_Click<kPallets>},

    {"mnuPressure", "mnuPressureModify", "&Modify", "", "Edit a pressure recipe"},
    {"mnuPressure", "mnuPressureDownload", "&Download", "", "Send a pressure recipe to the controller", &A::Download_Click<kPressures>, kAny, kPlain, kLine},
    {"mnuPressure", "mnuPressureUpload", "&Upload", "", "Fetch pressure recipes from the controller", &A::Upload_Click<kPressures>},

    {"mnuPanel", "mnuPanelModify", "&Modify", "", "Edit a panel"},
    {"mnuPanel", "mnuPanelDownload", "&Download", "", "Send a panel to the controller", &A::Download_Click<kPanels>, kAny, kPlain, kLine},
    {"mnuPanel", "mnuPanelUpload", "&Upload", "", "Fetch panels from the controller", &A::Upload_Click<kPanels>},

    {"mnuTarget", "mnuTargetModify", "&Modify", "", "Edit a target recipe"},
    {"mnuTarget", "mnuTargetDownload", "&Download", "", "Send a target recipe to the controller", &A::Download_Click<kTargets>, kAny, kPlain, kLine},
    {"mnuTarget", "mnuTargetUpload", "&Upload", "", "Fetch target recipes from the controller", &A::Upload_Click<kTargets>},

    {"mnuDataServer", "mnuDataServerConfig", "&Configure", "", "Choose what the data server serves"},
    {"mnuDataServer", "mnuDataServerStart", "&Start", "", "Start the data server", nullptr, kAny, kPlain, kLine},
    {"mnuDataServer", "mnuDataServerStop", "S&top", "", "Stop the data server"},
    {"mnuDataServer", "mnuDataServerRefresh", "&Refresh", "", "Let the data server read its files anew"},

    {"mnuRemote", "mnuRemote", "Re&mote", "F11", "Work the machine's pendant from here"},
    {"mnuRemoteDiag", "mnuRemoteDiag", "Remote Diag", "F12", "Watch the machine's inputs and outputs"},

    {"mnuSetup", "mnuSetupDownload", "&Download", "", "Send the setup to the controller"},
    {"mnuSetup", "mnuSetupUpload", "&Upload", "", "Fetch the setup from the controller"},
    {"mnuSetup", "mnuSetupModify", "&Modify", "", "Edit the machine's setup"},
    {"mnuSetup", "mnuSetupTools", "&Tools", "", "Edit the tool table", nullptr, kAny, kPlain, kLine},
    {"mnuSetup", "mnuSetupSecurity", "&Security", "", "Edit the machine's users and their rights"},
    {"mnuSetup", "mnuSetupPeriodicEvents", "&Periodic Events", "", "Edit what the machine does at set times"},
    {"mnuSetup", "mnuSetupShifts", "S&hifts", "", "Edit the shifts"},
    {"mnuSetup", "mnuSetupDownloadSoftware", "Download Soft&ware", "", "Send new software to the controller", nullptr, kAny, kPlain, kLine},
    {"mnuSetup", "mnuSetupDownloadDateTime", "Download Dat&e/Time", "", "Set the controller's clock", &A::mnuSetupDownloadDateTime_Click},
    {"mnuSetup", "mnuSetupRebootMachine", "&Reboot Machine", "", "Restart the controller", nullptr, kAny, kDeveloper},
    {"mnuSetup", "mnuSetupAutoTest", "&Auto Test", "", "Run the controller's own test", nullptr, kAny, kDeveloper},

    {"mnuBackup", "mnuBackupBackup", "&Backup Controller", "", "Copy all files of the controller"},
    {"mnuBackup", "mnuBackupRestore", "&Restore Controller", "", "Send a backup to the controller"},
    {"mnuBackup", "mnuBackupUpload", "&Upload Files", "", "Fetch any files from the controller", nullptr, kAny, kPlain, kLine},
    {"mnuBackup", "mnuBackupDownload", "&Download Files", "", "Send any files to the controller", &A::Download_Click<kAllFiles>},
    {"mnuBackup", "mnuBackupDelete", "De&lete Controller File", "", "Delete a file of the controller"},
    {"mnuBackup", "mnuBackupFtp", "Open &FTP for Upload", "", "Open the place where backups can be left"},

    {"mnuHelp", "mnuHelpDiag", "&Send Diagnostics Info To Morvane...", "", "Pack and send a problem report"},
    {"mnuHelp", "mnuHelpAbout", "&About Morvane...", "F1", "Show the version of the program", &A::mnuHelpAbout_Click},
};
// clang-format on

}  // namespace

std::span<const Menu> Menus() {
  return kMenus;
}

std::span<const MenuEntry> MenuEntries() {
  return kEntries;
}

}  // namespace morvane::app
