// SPDX-License-Identifier: MIT
#pragma once

#include "tags/SaveJournal.h"
#include "ui/LyricsExport.h"

#include <QMap>
#include <QObject>

#include <functional>

class QAction;
class QLabel;
class QProgressBar;
class QStatusBar;
class QToolButton;
class QWidget;

// What stands in the window's status bar: how many searches are left and their progress, notices that stay until the
// user dismisses them, and buttons.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    // Fills the status bar, and belongs to it.
    explicit StatusLine(QStatusBar *bar);
    ~StatusLine() override;

    // Progress counts from the last time when none was left.
    void setSearchesLeft(int left);

    // A button for an action, at the right end; hidden while the action is.
    void addButton(QAction *action);

    // Puts all texts in the language of the moment.
    void retranslate();

public slots:
    // `copy` is the path of the damaged file as it was; empty when no copy could be made.
    void showSettingsDamaged(const QString &copy);
    void showSettingsUnreadable();
    // Files that a scan left out because of their names. Counts on until the notice is dismissed.
    void addUnusableNames(int count);
    // What became of saves that were cut off. Replaces what was shown of them before.
    void showSavesMended(const tags::MendedSaves &mended);
    // How many songs could not be written for this reason.
    void showWritesFailed(const QString &reason, int count);
    // How many of those are left; the notice goes with the last one. Does nothing once the notice was dismissed.
    void updateWritesFailed(const QString &reason, int count);
    // The list is full. Counts on until the notice is dismissed.
    void addFilesLeftOut(int count);
    // Files that were handed over and are none that can be listed. Counts on until the notice is dismissed.
    void addUnsupportedFiles(int count);
    // Success is shown for some seconds only.
    void showExported(const LyricsExport::Result &result);

private:
    // Each kind has a place of its own, so that none overwrites another one.
    enum Notice {
        SettingsDamaged,
        SettingsUnreadable,
        FilesLeftOut,
        UnusableNames,
        UnsupportedFiles,
        SavesMended,
        WritesFailed,
        LyricsExported
    };

    // Says in the language of the moment what is to be told.
    using Words = std::function<QString()>;

    struct Shown
    {
        QWidget *widget = nullptr;
        Words words;
    };

    void showNotice(Notice notice, const Words &words);
    void showNoticeBriefly(Notice notice, const Words &words);
    [[nodiscard]] QWidget *makeNotice(Notice notice);
    static void write(const Shown &shown);
    [[nodiscard]] QString writesFailedWords() const;
    void remove(Notice notice);
    void dismiss(Notice notice);

    QStatusBar *m_bar;
    QWidget *m_searches; // label and progress
    QLabel *m_label;
    QProgressBar *m_progress;
    int m_left = 0;
    int m_done = 0; // since no search was left
    int m_filesLeftOut = 0;
    int m_unusableNames = 0;
    int m_unsupportedFiles = 0;
    QMap<QString, int> m_writesFailed; // reason to number, as shown
    QMap<Notice, Shown> m_notices;
    QToolButton *m_firstButton = nullptr; // of those at the right
};
