// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class LyricsEdit;
class MainModel;
class ModelItem;
class ProxyModel;
class QMessageBox;
class QWidget;

// Sees to it that a modified draft of lyrics is never lost unasked: the user may save it, discard it or go back to it.
//
// The song that is edited has to be the one that is shown, which is the only selected one. When it is not any more, an
// unmodified edit ends and a modified one is asked about. Whoever is about to take the song away asks first, through
// before(). Main thread only.
class LyricsEditGuard : public QObject
{
    Q_OBJECT

public:
    // Nothing is owned; all must outlive the guard. The question belongs to the window.
    LyricsEditGuard(LyricsEdit *edit, MainModel *model, ProxyModel *proxy, QWidget *window);
    ~LyricsEditGuard() override;

    // Runs the action; when there is a modified draft, not before the user has saved or discarded it, and never when
    // the user goes back to it or the question is open already.
    void before(std::function<void()> action);

signals:
    // The user went back to the draft, whose song is shown.
    void draftKept();

private:
    void check();
    void saveDraft(ModelItem *song, const QString &text);
    void ask(std::function<void()> leave, std::function<void()> stay);
    [[nodiscard]] QMessageBox *makeQuestion() const;
    [[nodiscard]] bool isSongShown() const;
    void showSong();

    LyricsEdit *m_edit;
    MainModel *m_model;
    ProxyModel *m_proxy;
    QWidget *m_window;
    QPointer<QMessageBox> m_question; // while it is open
    // What the user does ends before it is looked at: a click changes the current row and the selection in turn.
    QTimer m_check;
};
