// SPDX-License-Identifier: MIT
#include "ui/LyricsEditGuard.h"

#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "ui/LyricsEdit.h"
#include "ui/QuestionBox.h"

LyricsEditGuard::LyricsEditGuard(LyricsEdit *edit, MainModel *model, ProxyModel *proxy, QWidget *window)
    : QObject(window)
    , m_edit(edit)
    , m_model(model)
    , m_proxy(proxy)
    , m_window(window)
{
    m_check.setSingleShot(true);
    m_check.setInterval(0);
    const auto checkSoon = qOverload<>(&QTimer::start);
    connect(m_proxy, &ProxyModel::currentIndexChanged, &m_check, checkSoon);
    connect(m_proxy, &ProxyModel::selectedCountChanged, &m_check, checkSoon);
    connect(&m_check, &QTimer::timeout, this, &LyricsEditGuard::check);
}

LyricsEditGuard::~LyricsEditGuard() = default;

bool LyricsEditGuard::isSongShown() const
{
    const QModelIndex row = m_proxy->mapFromSource(m_model->index(m_model->rowOf(m_edit->song()->id())));
    return row.isValid() && m_proxy->selectedCount() == 1 && m_proxy->isSelected(row.row());
}

void LyricsEditGuard::check()
{
    if (!m_edit->song() || m_question || isSongShown())
        return;
    const bool isListed = m_model->item(m_edit->song()->id()) == m_edit->song();
    if (m_edit->modified() && isListed)
        ask([] {}, [this] { showSong(); });
    else
        m_edit->cancel();
}

void LyricsEditGuard::before(std::function<void()> action)
{
    if (m_question) {
        m_question->raise();
        m_question->activateWindow();
    } else if (m_edit->modified()) {
        ask(std::move(action), [] {});
    } else {
        action();
    }
}

void LyricsEditGuard::ask(std::function<void()> leave, std::function<void()> stay)
{
    m_question = makeQuestion();
    // Whatever happens to the edit meanwhile, this is what the question is about.
    const QPointer<ModelItem> song = m_edit->song();
    connect(m_question, &QMessageBox::finished, this,
            [this, song, text = m_edit->text(), leave = std::move(leave), stay = std::move(stay)](int answer) {
                m_question.clear();
                if (answer == QMessageBox::Save)
                    saveDraft(song, text);
                else if (answer == QMessageBox::Discard)
                    m_edit->cancel();
                m_check.start(); // the list may have changed behind the question
                if (!m_edit->active()) {
                    leave();
                    return;
                }
                stay();
                emit draftKept();
            });
    m_question->open();
}

void LyricsEditGuard::saveDraft(ModelItem *song, const QString &text)
{
    if (m_edit->active() && m_edit->song() == song)
        m_edit->save();
    else
        m_edit->write(song, text);
}

QMessageBox *LyricsEditGuard::makeQuestion() const
{
    const QString name = shownName(*m_edit->song(), m_window);
    QMessageBox *box =
        makeQuestionBox(tr("The lyrics of “%1” have been changed.", "%1 is the title of a song").arg(name),
                        tr("Do you want to save the changes?"),
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box->setDefaultButton(QMessageBox::Save);
    box->setEscapeButton(QMessageBox::Cancel);
    return box;
}

// Makes it the only selected row, and the current one.
void LyricsEditGuard::showSong()
{
    const QModelIndex sourceRow = m_model->index(m_model->rowOf(m_edit->song()->id()));
    if (!m_proxy->mapFromSource(sourceRow).isValid())
        m_proxy->setShowFound(true);
    // A row that is current already would keep the other rows selected.
    m_proxy->setCurrentIndex(-1);
    m_proxy->setCurrentIndex(m_proxy->mapFromSource(sourceRow).row());
}
