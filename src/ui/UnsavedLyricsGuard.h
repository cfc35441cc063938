// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <QVector>

#include <functional>
#include <utility>

class MainModel;
class QWidget;
class WritesWait;

// Sees to it that what stands in the list only is never given up unasked, when songs are removed or the program ends:
// lyrics whose write failed, and new names that nobody has saved or whose write failed. One question is about both, and
// tells why earlier writes have failed. The user may have all of it saved, and is asked again when that fails. Songs
// that are being written are waited for before (ui/WritesWait.h). Main thread only.
class UnsavedLyricsGuard
{
    Q_DECLARE_TR_FUNCTIONS(UnsavedLyricsGuard)

public:
    using Songs = QVector<quint16>; // their ids

    // Nothing is owned; both must outlive the guard. The question belongs to the window.
    UnsavedLyricsGuard(MainModel *model, QWidget *window);

    // Called first of all, so that names which were typed but not confirmed are given to these songs; to all that have
    // such names when there is no song.
    void setTakeTypedNames(std::function<void(const Songs &)> take) { m_takeTypedNames = std::move(take); }

    // Runs an action that removes these songs, at once when nothing is in its way; when some have such texts, not
    // before the user has saved them or given them up, and never when the user cancels, or while another action waits
    // or is asked about.
    void beforeRemoving(const Songs &ids, std::function<void()> action);
    // In the same way an action that ends the program. First writes of lyrics that are under way are left to the end of
    // the program, which waits for them without a window and keeps the lyrics that they could not store. Who gives up
    // something here may still stay: giveUp() is to be called when the program ends indeed.
    void beforeQuitting(std::function<void()> action);
    // Tells the model what the user gave up when last asked before quitting.
    void giveUp();

private:
    void before(const std::function<Songs()> &candidates, const std::function<void(const Songs &givenUp)> &action);
    void afterWrites(const Songs &ids, std::function<void()> action);
    void ask(const Songs &ids, std::function<void(int)> answered);
    [[nodiscard]] QString lossOf(const Songs &ids) const;
    [[nodiscard]] QStringList failuresOf(const Songs &ids) const;

    MainModel *m_model;
    QWidget *m_window;
    std::function<void(const Songs &)> m_takeTypedNames = [](const Songs &) {
    };
    QPointer<WritesWait> m_wait;      // while it lasts
    QPointer<QMessageBox> m_question; // while it is open
    Songs m_givenUp;
};
