// The question editor: writes new question sets and changes existing ones,
// one category of one round at a time, and converts legacy files. It holds
// one set in memory, copies every change of a field into it at once, and
// writes the whole set only on Save As.
//
// Split by concern: commands, load and layout (frmEditor.cpp); rounds,
// categories and fields (frmEditor_Fields.cpp); the clues' pictures
// (frmEditor_Pictures.cpp); the host's sheet (frmEditor_Sheet.cpp);
// spreadsheets in and out (frmEditor_Spreadsheet.cpp).
#pragma once

#include "questions/QuestionSet.h"

#include <QHash>
#include <QList>
#include <QMainWindow>

#include <array>

class CaptionControl;
class QAction;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

class clsOpenSaveDlg;

class frmEditor : public QMainWindow {
    Q_OBJECT
public:
    explicit frmEditor(QWidget *parent = nullptr);

    // The set to open when the editor loads; "" starts a new set. Set it
    // before the editor is first shown.
    QString FileToLoad;

    // The set in memory and where the fields stand.
    QuestionSet questionSet;
    qint16 CurrentRound = 0;
    qint16 CurrentCategory = 0;
    QString CurrentFileBase;
    // "X" while there are unsaved changes, "" otherwise.
    QString Modified;

    CaptionControl *vseMain = nullptr;
    QLineEdit *txtDesc = nullptr;
    QLineEdit *txtSecs = nullptr;
    QComboBox *cmbRounds = nullptr;
    // Option buttons, drawn as buttons that stay pressed.
    CaptionControl *vseRounds = nullptr;
    std::array<QPushButton *, 3> optRound{};
    QComboBox *cmbCategories = nullptr;
    CaptionControl *vseCategories = nullptr;
    std::array<QPushButton *, 6> optCategory{};
    QLineEdit *txtName = nullptr;
    std::array<QLineEdit *, 5> txtAnswer{};
    std::array<QLineEdit *, 5> txtQuestion{};
    // Each clue's picture: a thumbnail that chooses one on a click, and
    // offers to remove it from its menu.
    std::array<QToolButton *, 5> cmdPicture{};
    std::array<QAction *, 5> mnuRemovePicture{};
    QAction *mnuNew = nullptr;
    QAction *mnuOpen = nullptr;
    QAction *mnuSave = nullptr;
    QAction *mnuPrintSheet = nullptr;
    QAction *mnuImportTable = nullptr;
    QAction *mnuExportTable = nullptr;
    QAction *mnuExit = nullptr;

    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuImportTable_Click();
    void mnuExportTable_Click();
    void mnuExit_Click();
    // The set on paper for the host (a PDF), without saving it.
    void mnuPrintSheet_Click();

    // A picture for clue j of the category shown: chosen in a dialog, or
    // taken away.
    void cmdPicture_Click(int j);
    void RemovePicture(int j);

    // Replaces the set with a file's content and shows it.
    void LoadQuestionSet(const QString &FileName);

    void optRound_Click(int Index);
    void optCategory_Click(int Index);

signals:
    // The editor is closing: the home screen comes back and lists afresh.
    void unloaded();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Form_Load();
    void createFields();
    QLineEdit *addField(const QString &caption, QRectF design, QRectF captionDesign);
    void createRoundsAndCategories();
    void createMenu();
    void connectFields();
    void arrangeTabOrder();

    // Asks to save unsaved work; false when the command must stop.
    bool modifiedCheck(const QString &caption);
    void newSet();
    void showSet();
    void selectRound(int r);
    void selectCategory(int c);
    void cmbRounds_Click();
    void cmbCategories_Click();
    void txtSecs_Change();
    void txtSecs_LostFocus();
    CategoryEntry &shownCategory();
    void createPictureButtons();
    // Shows the category's pictures on their buttons.
    void showPictures();
    // A picture button's picture as large as the button leaves room for.
    void fitPictureIcon(QToolButton *button);
    void setFieldShown(QLineEdit *field, bool shown);
    // Where the dialogs look for sets and put new files: the documents
    // folder, else the program folder if it takes files (as when built),
    // else the home folder.
    QString questionFolder() const;
    // Where a save, a host sheet or a spreadsheet export is proposed: beside
    // the set when that folder takes files, else questionFolder() — a set
    // opened from an installed program folder is saved among the user's.
    QString saveFolder() const;
    // A set imported from a table is proposed in questionFolder() until it
    // is saved: the home screen lists only there and the program folder.
    bool proposeDocuments_ = false;
    // What every file dialog of the editor shares: this window as owner,
    // the folder it opens in, Explorer style, long names, no read-only box.
    void prepareDialog(clsOpenSaveDlg &dialog, const QString &folder);

    bool loaded_ = false;
    QHash<QLineEdit *, QLabel *> captions_;
};
