#pragma once

#include "forms/layout.h"

namespace halvenmoor {

/// The controls of the main window. Each type has a row of controls, 1560 twips below that of the type
/// before; the buttons in the two frames lie on the window, not in the frames.
class frmMainLayout : public forms::Layout {
public:
    explicit frmMainLayout(forms::Desktop& desktop)
        : Layout(desktop, {.name = "frmMain", .title = "Halvenmoor", .width = 11910, .height = 8520}) {}

    // clang-format off
    Array<Label, 1, 5> LabelTypeList{[this](int i) {
        return Row("LabelTypeList", { 150,  240 + 1560 * (i - 1), 4815,  255}, 38 + i, kHeadings[i - 1]); }};
    PictureBox Picture1{Row("Picture1", {150,  480, 1230, 1230}, 28).Showing("type1").Bordered()};
    PictureBox Picture2{Row("Picture2", {150, 2040, 1230, 1230}, 35).Showing("type2").Bordered()};
    PictureBox Picture3{Row("Picture3", {150, 3600, 1230, 1230}, 36).Showing("type3").Bordered()};
    PictureBox Picture4{Row("Picture4", {150, 5160, 1230, 1230}, 37).Showing("type4").Bordered()};
    PictureBox Picture5{Row("Picture5", {150, 6720, 1230, 1230}, 38).Showing("type5").Bordered()};
    Array<ListBox, 1, 5> TypeList{[this](int i) {
        return Row("TypeList",      {1440,  480 + 1560 * (i - 1), 3375, 1230}, 29 + i); }};
    Array<CheckBox, 1, 5> CheckAuto{[this](int i) {
        return Row("CheckAuto",     {4920,  540 + 1560 * (i - 1),  795,  255}, 9 + 3 * i, "Auto").On(); }};
    Array<CommandButton, 1, 5> ButtonAdd{[this](int i) {
        return Row("ButtonAdd",     {4860,  840 + 1560 * (i - 1),  855,  375}, 10 + 3 * i)
            .Showing(Glyph::TriangleLeft, 14.25).PressedBy(kAddKeys[i - 1]); }};
    Array<CommandButton, 1, 5> ButtonRemove{[this](int i) {
        return Row("ButtonRemove",  {4860, 1305 + 1560 * (i - 1),  855,  375}, 11 + 3 * i)
            .Showing(Glyph::TriangleRight, 14.25).PressedBy(kRemoveKeys[i - 1]); }};

    Label    LabelMainList      {Row("LabelMainList",       {5760, 240, 3375,  255}, 44, "Speed Camera Files  (Unclassified)")};
    ListBox  MainList           {Row("MainList",            {5760, 480, 3375, 7470}, 29)};
    Label    LabelSelectLanguage{Row("LabelSelectLanguage", {9240, 240, 2535,  255}, 47, "Select Language")};
    ComboBox LanguageList       {Row("LanguageList",        {9240, 480, 2535,  315}, 27, "Language")
                                     .LabelledBy(LabelSelectLanguage)};

    Frame         FrameFileOptions     {Row("FrameFileOptions",      {9240,  960, 2535, 3315}, 45, "File Options")};
    CommandButton ButtonClassifyFiles  {Row("ButtonClassifyFiles",   {9360, 1320, 2295,  375},  0, "Classify Files").Disabled()};
    CommandButton ButtonReloadFiles    {Row("ButtonReloadFiles",     {9360, 1920, 2295,  375},  1, "Reload Files").PressedBy("F5")};
    CommandButton ButtonRenameFile     {Row("ButtonRenameFile",      {9360, 2520, 2295,  375},  2, "Rename File").Disabled().PressedBy("F2")};
    CommandButton ButtonImportFiles    {Row("ButtonImportFiles",     {9360, 3120, 2295,  375},  3, "Import Files")};
    CheckBox      CheckDemoMode        {Row("CheckDemoMode",         {9360, 3660, 2295,  390},  4, "Demonstration mode").On()};

    Frame         FrameExportCameras   {Row("FrameExportCameras",    {9240, 4440, 2535, 3495}, 46, "Export Cameras")};
    CommandButton ButtonExportCameras  {Row("ButtonExportCameras",   {9360, 4800, 2295,  375},  5, "Export").Disabled()};
    Array<OptionButton, 1, 3> OptionExportMode{[this](int i) {
        return Row("OptionExportMode", {9360, 5340 + 480 * (i - 1), 2295, 390}, 5 + i, kModes[i - 1]).On(i == 1); }};
    CheckBox      CheckSaveResults     {Row("CheckSaveResults",      {9360, 6780, 2295,  390},  9, "Save results to file ").On()};
    CommandButton ButtonShowResults    {Row("ButtonShowResults",     {9360, 7320, 2295,  375}, 10, "Show Results").Disabled()};
    CommandButton ButtonExitApplication{Row("ButtonExitApplication", {9660, 8040, 1695,  375}, 11, "Exit").PressedBy("Ctrl+Q")};
    // clang-format on

private:
    static constexpr const char* kHeadings[] = {
        "Speed Camera Type \"1\"  (Fixed Speed Camera)", "Speed Camera Type \"2\"  (Red Speed Camera)",
        "Speed Camera Type \"3\"  (Red Light Camera)", "Speed Camera Type \"4\"  (Section Speed Camera)",
        "Speed Camera Type \"5\"  (Mobile Speed Camera)"};
    // One button is enough to put files back, as each of them does so for all types.
    static constexpr const char* kAddKeys[] = {"Alt+1", "Alt+2", "Alt+3", "Alt+4", "Alt+5"};
    static constexpr const char* kRemoveKeys[] = {"Alt+0", "", "", "", ""};
    static constexpr const char* kModes[] = {"Replace File", "Save File As...", "Append To File..."};
};

}  // namespace halvenmoor
