// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"
#include "ui/WritesWait.h"

#include <algorithm>
#include <utility>

static QVector<quint16> idsWithNewNames(const MainModel &model)
{
    QVector<quint16> ids;
    for (int row = 0; row < model.rowCount(); ++row) {
        const ModelItem *song = model.itemAt(row);
        if (song->artistEdited() || song->titleEdited())
            ids.append(song->id());
    }
    return ids;
}

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
        beforeGivingUpLyrics(static_cast<int>(unsaved), action);
    });
}

void UnsavedLyricsGuard::beforeRemovingAny(std::function<void()> action)
{
    const QVector<quint16> ids = m_model->idsWithUnsavedLyrics();
    afterWrites(ids,
                [this, ids, action = std::move(action)] { beforeGivingUpLyrics(unsavedOfAll(ids).size(), action); });
}

void UnsavedLyricsGuard::beforeQuitting(std::function<void()> action)
{
    beforeGivingUpNames([this, action = std::move(action)] {
        const QVector<quint16> unsaved = m_model->unsavedIds();
        beforeGivingUpLyrics(unsaved.size(), [this, unsaved, action] {
            m_givenUp = unsaved;
            action();
        });
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

// Writes under way come first, as they may store them.
void UnsavedLyricsGuard::beforeGivingUpNames(std::function<void()> action)
{
    afterWrites(idsWithNewNames(*m_model), [this, action = std::move(action)] {
        const QVector<quint16> ids = idsWithNewNames(*m_model);
        if (ids.isEmpty()) {
            action();
            return;
        }
        const auto answered = [this, ids, action](int answer) {
            if (answer == QMessageBox::Save) {
                for (const quint16 id : ids)
                    m_model->writeTagsUnlessForeign(id);
                beforeGivingUpNames(action);
            } else if (answer == QMessageBox::Discard) {
                action();
            }
        };
        ask(tr("The changed artist or title of %n song(s) is not in the file yet.", nullptr, ids.size()),
            tr("Do you want to save the changes?"), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
            answered);
    });
}

void UnsavedLyricsGuard::beforeGivingUpLyrics(int unsaved, std::function<void()> action)
{
    if (unsaved == 0) {
        action();
        return;
    }
    ask(tr("The lyrics of %n song(s) are not in the files and stand in the list only.", nullptr, unsaved),
        tr("Do you want to give them up?"), QMessageBox::Discard | QMessageBox::Cancel,
        [action = std::move(action)](int answer) {
            if (answer == QMessageBox::Discard)
                action();
        });
}

void UnsavedLyricsGuard::ask(const QString &text, const QString &question, QMessageBox::StandardButtons buttons,
                             std::function<void(int)> answered)
{
    if (m_question) {
        m_question->raise();
        m_question->activateWindow();
        return;
    }
    m_question = makeQuestionBox(text, question, buttons, m_window);
    m_question->setDefaultButton(buttons.testFlag(QMessageBox::Save) ? QMessageBox::Save : QMessageBox::Cancel);
    QObject::connect(m_question, &QMessageBox::finished, m_window, [this, answered = std::move(answered)](int answer) {
        m_question.clear();
        answered(answer);
    });
    m_question->open();
}
