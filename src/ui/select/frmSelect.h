// The home screen: the question sets to play, the number of teams, and the
// way to the game, the editor and the help. Closing it ends the program.
#pragma once

#include "game/BuzzerInputs.h"
#include "game/GameJournal.h"
#include "players/Phones.h"
#include "ui/board/frmMain.h"
#include "ui/buzzers/frmBuzzers.h"
#include "ui/console/frmConsole.h"
#include "platform/PictureBox.h"
#include "select/QuestionSetList.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <functional>

class CaptionControl;
class CommandButton;
class QCheckBox;
class QComboBox;
class QPushButton;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QuestionListDelegate;
class QAction;
class QMenu;


class frmSelect : public QWidget {
    Q_OBJECT
public:
    // Form_Load: sized 640 x 480 and centred, the list filled, "Three teams"
    // chosen and the first entry selected. A listing made ahead fills the
    // list if it is of the folders the list shows; it is asked for once the
    // controls are built, so that they are built while it is made.
    frmSelect(GameState &state, Libraries &libraries, QWidget *parent = nullptr,
              std::function<SetListing()> ahead = {});
    ~frmSelect() override;

    // The library picture across the top of the screen.
    static constexpr int32_t kBannerPicture = 203;

    QListWidget *lstQuestions = nullptr;
    QLabel *lblScore = nullptr;
    QComboBox *cmbScore = nullptr;
    // Beyond the team count: buzz-in on or off, and the buzzers learned.
    QCheckBox *chkBuzzIn = nullptr;
    QPushButton *cmdBuzzers = nullptr;
    // Phones as buzzers and answer pads: off until ticked.
    QCheckBox *chkPhones = nullptr;
    CaptionControl *vseButtons = nullptr;
    CommandButton *cmdStart = nullptr;
    CommandButton *cmdEditor = nullptr;
    CommandButton *cmdHowToPlay = nullptr;
    CaptionControl *vseImportExport = nullptr;
    CommandButton *cmdExport = nullptr;
    CommandButton *cmdImport = nullptr;
    PictureBox picText;

    // Fills the list afresh from both folders; no entry is selected after.
    void PopulateQZ2();
    // Waits until the sets taken on trust have been looked at, if they are
    // being looked at, and the list filled afresh if need be (for tests).
    void waitForSetsChecked();
    // The full path of the file behind an entry.
    QString GetEntryPath(const QListWidgetItem *entry) const;

    void cmdStart_Click();
    void cmdEditor_Click();
    void cmdHowToPlay_Click();

    // Export and import: a whole-file copy of the selected set to a place
    // the host chooses, or of a chosen file into the documents folder. An
    // empty InitialFolder starts the dialog on the desktop.
    QMenu *mnuExport = nullptr;
    QMenu *mnuImport = nullptr;
    QAction *mnuExportFloppy = nullptr;
    QAction *mnuExportAnother = nullptr;
    QAction *mnuImportFloppy = nullptr;
    QAction *mnuImportAnother = nullptr;
    void ExportQuestionSet(const QString &InitialFolder);
    void ImportQuestionSet(const QString &InitialFolder);

    // The screen open over the home screen, if any (for tests).
    frmMain *board() const { return board_; }
    QWidget *editor() const { return editor_; }
    QWidget *help() const { return help_; }
    // The game left behind by a crash, if any: offers to resume it and
    // does, on the host's word. True when a board opened.
    bool offerResume();
    GameJournal &journal() { return journal_; }

    // The host's console, once opened (for tests).
    frmConsole *console() const { return console_; }
    // The room's buzzers, and the window that learns them.
    BuzzerInputs &buzzers() { return buzzers_; }
    void openBuzzers();
    frmBuzzers *buzzersWindow() const { return buzzersWindow_; }
    // The phones: turned on and off here or on the console.
    Phones &phones() { return phones_; }
    void setPhonesOn(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void createControls();
    void createButtons();
    void createMenus();
    void createBuzzerControls();
    void editorClosed();
    void layOut();
    QString documentsFolder() const;
    QListWidgetItem *selectedEntry() const;
    bool checkSelectedEntry();
    void comeBack();
    // Opens the host's console: by hand as a window (to rehearse, or to name
    // the teams), or on the host's screen when the board takes another.
    void openConsole(bool byHand);
    // Hides the home screen and opens a board through start, which gets
    // the host's screen (when the board is to take another) and what must
    // follow the board from its load.
    using BoardOpener = std::function<frmMain *(QScreen *, const std::function<void(frmMain *)> &)>;
    void openBoard(const BoardOpener &start);
    // Sets taken on trust from the cache (their folders unchanged) are
    // looked at on another core once the screen has painted; should one
    // have been written since, the list is filled afresh.
    void checkSetsTakenOnTrust();
    void refillKeepingSelection();

    GameState &state_;
    Libraries &libraries_;
    QuestionListDelegate *delegate_ = nullptr;
    QImage banner_;
    QPointer<frmMain> board_;
    QPointer<QWidget> editor_;
    QPointer<QWidget> help_;
    QPointer<frmConsole> console_;
    bool consoleByHand_ = false;
    GameJournal journal_;
    BuzzerInputs buzzers_;
    Phones phones_{state_};
    QPointer<frmBuzzers> buzzersWindow_;
    std::function<SetListing()> ahead_;
    QList<UncheckedFolder> unchecked_;
    std::unique_ptr<QThread> checker_;
};
