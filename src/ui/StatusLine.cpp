// SPDX-License-Identifier: MIT
#include "ui/StatusLine.h"

#include "ui/ElidedLabel.h"
#include "ui/Legibility.h"
#include "ui/SlimProgressBar.h"

#include <QAction>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include <chrono>
#include <numeric>

static constexpr int progressWidth = 160;
static constexpr QSize linkIconSize(16, 16);
static constexpr std::chrono::seconds briefly(6);

StatusLine::StatusLine(QStatusBar *bar)
    : QObject(bar)
    , m_bar(bar)
    , m_searches(new QWidget(bar))
    , m_label(new QLabel(m_searches))
    , m_progress(new SlimProgressBar(m_searches))
{
    m_bar->setSizeGripEnabled(false);
    m_bar->setContentsMargins(8, 0, 8, 0);
    m_label->setTextFormat(Qt::PlainText);
    m_progress->setFixedWidth(progressWidth);
    auto *layout = new QHBoxLayout(m_searches);
    layout->setContentsMargins(0, 0, 10, 0); // with the bar's own spacing, 16 pixels to the first notice
    layout->setSpacing(16);
    m_searches->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    layout->addWidget(m_label);
    layout->addWidget(m_progress);
    m_bar->addWidget(m_searches);
    setSearchesLeft(0);
}

StatusLine::~StatusLine() = default;

void StatusLine::setSearchesLeft(int left)
{
    m_done = left == 0 ? 0 : m_done + qMax(0, m_left - left);
    m_left = left;
    m_label->setText(left > 0 ? tr("Searching... %n left...", nullptr, left) : QString());
    m_progress->setAccessibleName(tr("Progress of the searches")); // here, since the language may have changed
    m_progress->setRange(0, qMax(1, m_done + left));
    m_progress->setValue(m_done);
    m_searches->setVisible(left > 0); // an empty place would push the notices to the right
}

void StatusLine::showSettingsDamaged(const QString &copy)
{
    showNotice(SettingsDamaged, [copy] {
        return copy.isEmpty()
                   ? tr("The settings file is damaged. What could be read is used, but no copy could be made.")
                   : tr("The settings file was damaged. What could be read is kept; the damaged file is now %1",
                        "%1 is the path of a file")
                         .arg(QDir::toNativeSeparators(copy));
    });
}

void StatusLine::showSettingsUnreadable()
{
    showNotice(SettingsUnreadable,
               [] { return tr("The settings cannot be read or stored; changes last for this run only."); });
}

void StatusLine::addUnusableNames(int count)
{
    m_unusableNames += count;
    showNotice(UnusableNames, [this] {
        return tr("Files left out, since their names are damaged or too long: %n", nullptr, m_unusableNames);
    });
}

void StatusLine::addUnsupportedFiles(int count)
{
    m_unsupportedFiles += count;
    showNotice(UnsupportedFiles, [this] {
        return tr("Files left out, since they are missing or of a kind that is not supported: %n", nullptr,
                  m_unsupportedFiles);
    });
}

void StatusLine::addFilesLeftOut(int count)
{
    m_filesLeftOut += count;
    showNotice(FilesLeftOut, [this] { return tr("The list is full. Files left out: %n", nullptr, m_filesLeftOut); });
}

static QString savesMendedWords(const tags::MendedSaves &mended)
{
    QStringList sentences;
    const auto say = [&sentences](const QString &sentence, const QStringList &paths) {
        if (!paths.isEmpty())
            sentences.append(sentence.arg(paths.join(QLatin1String(", "))));
    };
    say(StatusLine::tr("The last save was cut off. Songs that are again as they were before it: %1",
                       "%1 is the paths of files"),
        mended.restored);
    say(StatusLine::tr("Copies from before a save that was cut off: %1", "%1 is the paths of files"), mended.kept);
    say(StatusLine::tr(
            "A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1",
            "%1 is the paths of files"),
        mended.waiting);
    say(StatusLine::tr("Whole copies of these songs: %1", "%1 is the paths of files"), mended.whole);
    say(StatusLine::tr("A save was cut off. Songs that are still being restored: %1", "%1 is the paths of files"),
        mended.underWay);
    return sentences.join(QLatin1String(". "));
}

void StatusLine::showSavesMended(const tags::MendedSaves &mended)
{
    if (savesMendedWords(mended).isEmpty())
        remove(SavesMended);
    else
        showNotice(SavesMended, [mended] { return savesMendedWords(mended); });
}

void StatusLine::showWritesFailed(const QString &reason, int count)
{
    m_writesFailed.insert(reason, count);
    updateWritesFailed(reason, count);
}

void StatusLine::updateWritesFailed(const QString &reason, int count)
{
    if (!m_writesFailed.contains(reason))
        return;
    if (count > 0)
        m_writesFailed.insert(reason, count);
    else
        m_writesFailed.remove(reason);
    if (m_writesFailed.isEmpty())
        remove(WritesFailed);
    else
        showNotice(WritesFailed, [this] { return writesFailedWords(); });
}

QString StatusLine::writesFailedWords() const
{
    const int songs = std::accumulate(m_writesFailed.cbegin(), m_writesFailed.cend(), 0);
    const QString reasons = QStringList(m_writesFailed.keys()).join(QLatin1String("; "));
    return tr("Songs that could not be written: %n (%1)", "%1 is the reason", songs).arg(reasons);
}

static QString exportWords(const LyricsExport::Result &result)
{
    if (result.failed > 1)
        return StatusLine::tr("The lyrics of %n songs could not be exported", nullptr, result.failed);
    if (result.failed == 1)
        return StatusLine::tr("The lyrics could not be written to %1", "%1 is the path of a file")
            .arg(QDir::toNativeSeparators(result.failedFile));
    if (result.written > 1)
        return StatusLine::tr("Lyrics exported to %n text files", nullptr, result.written);
    if (result.written == 1)
        return StatusLine::tr("Lyrics exported to one text file");
    return StatusLine::tr("There are no lyrics to export");
}

void StatusLine::showExported(const LyricsExport::Result &result)
{
    const auto words = [result] {
        return exportWords(result);
    };
    if (result.failed > 0)
        showNotice(LyricsExported, words);
    else
        showNoticeBriefly(LyricsExported, words);
}

void StatusLine::showNotice(Notice notice, const Words &words)
{
    remove(notice);
    const Shown shown{makeNotice(notice), words};
    m_notices.insert(notice, shown);
    write(shown);
    m_bar->addWidget(shown.widget, 1);
    if (m_firstButton) // which stands to the right of all notices
        QWidget::setTabOrder(m_firstButton->previousInFocusChain(), shown.widget->findChild<QToolButton *>());
    shown.widget->show();
}

void StatusLine::showNoticeBriefly(Notice notice, const Words &words)
{
    showNotice(notice, words);
    QTimer::singleShot(briefly, m_notices.value(notice).widget, [this, notice] { dismiss(notice); });
}

void StatusLine::write(const Shown &shown)
{
    const QString text = shown.words();
    shown.widget->findChild<ElidedLabel *>()->setWords(text);
    auto *button = shown.widget->findChild<QToolButton *>();
    button->setToolTip(tr("Dismiss"));
    button->setAccessibleName(tr("Dismiss"));
    button->setAccessibleDescription(text);
}

void StatusLine::retranslate()
{
    setSearchesLeft(m_left);
    for (const Shown &shown : qAsConst(m_notices))
        write(shown);
}

QWidget *StatusLine::makeNotice(Notice notice)
{
    auto *widget = new QWidget(m_bar);
    auto *label = new ElidedLabel(widget);
    auto *button = new QToolButton(widget);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setText(QStringLiteral("×")); // unlike the style's picture it is seen on a dark window
    connect(button, &QToolButton::clicked, this, [this, notice] { dismiss(notice); });
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(label);
    layout->addWidget(button);
    layout->addStretch(1);
    return widget;
}

void StatusLine::remove(Notice notice)
{
    QWidget *widget = m_notices.take(notice).widget;
    if (!widget)
        return;
    widget->hide();
    widget->deleteLater(); // its button may be what was clicked
}

void StatusLine::dismiss(Notice notice)
{
    remove(notice);
    if (notice == FilesLeftOut)
        m_filesLeftOut = 0;
    else if (notice == UnusableNames)
        m_unusableNames = 0;
    else if (notice == UnsupportedFiles)
        m_unsupportedFiles = 0;
    else if (notice == WritesFailed)
        m_writesFailed.clear();
}

void StatusLine::addButton(QAction *action)
{
    auto *button = new QToolButton(m_bar);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setDefaultAction(action);
    button->setVisible(action->isVisible());
    const auto *legibility = new Legibility(button);
    const auto scale = [button, legibility] {
        button->setIconSize(linkIconSize * legibility->textScale());
    };
    connect(legibility, &Legibility::textScaleChanged, button, scale);
    scale();
    connect(action, &QAction::changed, button, [button, action] { button->setVisible(action->isVisible()); });
    m_bar->addPermanentWidget(button);
    if (!m_firstButton)
        m_firstButton = button;
}
