// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"
#include "ui/WritesWait.h"

#include <algorithm>
#include <utility>

UnsavedLyricsGuard::UnsavedLyricsGuard(MainModel *model, QWidget *window)
    : m_model(model)
    , m_window(window)
{
}

void UnsavedLyricsGuard::beforeRemoving(const QVector<quint16> &ids, std::function<void()> action)
{
    afterWrites(ids, [this, ids, action = std::move(action)] {
        const auto unsaved =
            std::count_if(ids.begin(), ids.end(), [this](quint16 id) { return m_model->hasUnsavedLyrics(id); });
        before(static_cast<int>(unsaved), action);
    });
}

void UnsavedLyricsGuard::beforeRemovingAny(std::function<void()> action)
{
    const QVector<quint16> ids = m_model->idsWithUnsavedLyrics();
    afterWrites(ids, [this, ids, action = std::move(action)] { before(unsavedOfAll(ids).size(), action); });
}

void UnsavedLyricsGuard::beforeQuitting(std::function<void()> action)
{
    const QVector<quint16> unsaved = m_model->unsavedIds();
    before(unsaved.size(), [this, unsaved, action = std::move(action)] {
        m_givenUp = unsaved;
        action();
    });
}

void UnsavedLyricsGuard::giveUp()
{
    m_model->giveUpUnsaved(m_givenUp);
}

void UnsavedLyricsGuard::afterWrites(const QVector<quint16> &ids, std::function<void()> action)
{
    if (m_wait) {
        m_wait->raise();
    } else if (!WritesWait::isNeeded(*m_model, ids)) {
        action();
    } else {
        m_wait = new WritesWait(m_model, ids, m_window);
        QObject::connect(m_wait, &WritesWait::done, m_window, [this, action = std::move(action)] {
            m_wait.clear();
            action();
        });
    }
}

// The songs whose write has failed, and those that were waited for in vain. Other writes that are under way are of
// searches that ended meanwhile.
QVector<quint16> UnsavedLyricsGuard::unsavedOfAll(const QVector<quint16> &waitedFor) const
{
    QVector<quint16> unsaved = m_model->unsavedIds();
    std::copy_if(waitedFor.begin(), waitedFor.end(), std::back_inserter(unsaved),
                 [this](quint16 id) { return m_model->isWriting(id) && m_model->hasUnsavedLyrics(id); });
    std::sort(unsaved.begin(), unsaved.end());
    unsaved.erase(std::unique(unsaved.begin(), unsaved.end()), unsaved.end());
    return unsaved;
}

void UnsavedLyricsGuard::before(int unsaved, std::function<void()> action)
{
    if (unsaved == 0) {
        action();
    } else if (m_question) {
        m_question->raise();
        m_question->activateWindow();
    } else {
        ask(unsaved, std::move(action));
    }
}

void UnsavedLyricsGuard::ask(int unsaved, std::function<void()> action)
{
    m_question = makeQuestionBox(
        tr("The lyrics of %n song(s) are not in the files and stand in the list only.", nullptr, unsaved),
        tr("Do you want to give them up?"), QMessageBox::Discard | QMessageBox::Cancel, m_window);
    m_question->setDefaultButton(QMessageBox::Cancel);
    QObject::connect(m_question, &QMessageBox::finished, m_window, [this, action = std::move(action)](int answer) {
        m_question.clear();
        if (answer == QMessageBox::Discard)
            action();
    });
    m_question->open();
}
