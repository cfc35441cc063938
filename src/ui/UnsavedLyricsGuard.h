// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <QVector>

#include <functional>

class MainModel;
class QWidget;
class WritesWait;

// Sees to it that lyrics which stand in the list only, because their write failed, are never given up unasked, nor,
// when the program ends, new names that nobody has saved. Songs that are to be removed, or whose new names are to be
// saved, are waited for while they are being written (ui/WritesWait.h). Main thread only.
class UnsavedLyricsGuard
{
    Q_DECLARE_TR_FUNCTIONS(UnsavedLyricsGuard)

public:
    // Nothing is owned; both must outlive the guard. The question belongs to the window.
    UnsavedLyricsGuard(MainModel *model, QWidget *window);

    // Runs an action that removes these songs, at once when nothing is in its way; when some have such lyrics, not
    // before the user has given them up, and never when the user cancels, or while another action waits or is asked
    // about.
    void beforeRemoving(const QVector<quint16> &ids, std::function<void()> action);
    // In the same way an action that removes any songs.
    void beforeRemovingAny(std::function<void()> action);
    // In the same way an action that ends the program. New names come first: the user may have them saved, and is asked
    // again when that fails. Other writes under way are left to the end of the program, which waits for them without a
    // window and keeps the lyrics that they could not store. Who gives lyrics up here may still stay: giveUp() is to be
    // called when the program ends indeed.
    void beforeQuitting(std::function<void()> action);
    // Tells the model which lyrics the user gave up when last asked before quitting.
    void giveUp();

private:
    void afterWrites(const QVector<quint16> &ids, std::function<void()> action);
    [[nodiscard]] QVector<quint16> unsavedOfAll(const QVector<quint16> &waitedFor) const;
    void beforeGivingUpNames(std::function<void()> action);
    void beforeGivingUpLyrics(int unsaved, std::function<void()> action);
    void ask(const QString &text, const QString &question, QMessageBox::StandardButtons buttons,
             std::function<void(int)> answered);

    MainModel *m_model;
    QWidget *m_window;
    QPointer<WritesWait> m_wait;      // while it lasts
    QPointer<QMessageBox> m_question; // while it is open
    QVector<quint16> m_givenUp;
};
