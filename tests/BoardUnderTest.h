// The board with its controls and layout operations in reach of a test.
#pragma once

#include "ui/board/frmMain.h"

class BoardUnderTest : public frmMain {
public:
    using frmMain::frmMain;
    using frmMain::Form_Resize;
    using frmMain::lblCategory;
    using frmMain::lblScore;
    using frmMain::lblScore2;
    using frmMain::lblTeam;
    using frmMain::lblTeam2;
    using frmMain::lblValue;
    using frmMain::PrepareTeamLabels;
    using frmMain::RotateTV;
    using frmMain::showOnScreen;
    using frmMain::tmrQuestion;
    using frmMain::Unload;
    using frmMain::vseCategories;
    using frmMain::vseCategory;
    using frmMain::vseCategory_RealignFrame;
    using frmMain::vseQuestion;
    using frmMain::vseQuestion_RealignFrame;
    using frmMain::vseQuestions;
    using frmMain::vseTV;
    using frmMain::ZoomTV;
};
