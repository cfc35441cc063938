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

// Sees to it that what stands in the list only is never given up unasked, when songs are removed, searches replace what
// was typed, or the program ends: lyrics whose write failed, a deletion of lyrics that failed, and new names that
// nobody has saved or whose write failed, or that were typed and not even confirmed. One question is about all of
// these; it names the songs and tells why earlier writes have failed. The user may have all of it saved, and is asked
// again when that fails. Songs that are being written are waited for before (ui/WritesWait.h). Main thread only.
class UnsavedLyricsGuard
{
    Q_DECLARE_TR_FUNCTIONS(UnsavedLyricsGuard)

public:
    using Songs = QVector<quint16>; // their ids

    // Names that were typed in the window and not confirmed. Which songs there are such names for, and how these songs
    // are given them.
    struct TypedNames
    {
        std::function<Songs()> songs;
        std::function<void(const Songs &)> take;
    };

    // Nothing is owned; both must outlive the guard. The question belongs to the window.
    UnsavedLyricsGuard(MainModel *model, QWidget *window);

    // Typed names are taken when the user has them saved, and when they were given up and the program ends.
    void setTypedNames(TypedNames names) { m_typedNames = std::move(names); }

    // Runs an action that removes these songs of the list, at once when nothing is in its way; when some have such
    // texts, not before the user has saved them or given them up, and never when the user cancels, or while another
    // action waits or is asked about. Which songs they are is asked again after each wait and question.
    void beforeRemoving(std::function<Songs()> songs, std::function<void()> action);
    // In the same way an action that searches for these songs, as far as they have lyrics that the user has typed: what
    // was found can be found again.
    void beforeSearching(const Songs &ids, std::function<void()> action);
    // In the same way an action that ends the program. First writes of lyrics that are under way are left to the end of
    // the program, which waits for them without a window and keeps the lyrics that they could not store. Who gives up
    // something here may still stay: giveUp() is to be called when the program ends indeed.
    void beforeQuitting(std::function<void()> action);
    // Tells the model what the user gave up when last asked before quitting.
    void giveUp();

private:
    struct Action
    {
        std::function<Songs()> songs; // whose texts it would lose
        bool removes;                 // these or their lyrics, and not all that there is
        std::function<void(const Songs &givenUp)> run;
        Songs givenUp = {}; // so far
    };
    // How many songs lose what, and which ones they are.
    struct Losses
    {
        Songs songs;
        int names = 0;
        int lyrics = 0;
        int deletions = 0;
    };

    [[nodiscard]] static Songs notGivenUp(const Action &action);
    void before(const Action &action);
    void askBefore(const Action &action, const Losses &losses);
    void afterWrites(const std::function<Songs()> &songs, std::function<void()> action);
    void ask(const Losses &losses, std::function<void(int)> answered);
    [[nodiscard]] bool hasFailed(quint16 id) const;
    [[nodiscard]] Losses lossesOf(const Songs &ids) const;
    [[nodiscard]] static QString textOf(const Losses &losses);
    [[nodiscard]] QStringList linesOf(Songs ids) const;

    MainModel *m_model;
    QWidget *m_window;
    TypedNames m_typedNames{[] { return Songs(); },
                            [](const Songs &) {
                            }};
    QPointer<WritesWait> m_wait;      // while it lasts
    QPointer<QMessageBox> m_question; // while it is open
    Songs m_givenUp;
};
