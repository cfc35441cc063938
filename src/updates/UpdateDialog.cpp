// SPDX-License-Identifier: MIT
#include "updates/UpdateDialog.h"

#include "updates/ProgramIcon.h"
#include "updates/ReleaseAge.h"
#include "updates/ReleaseNotes.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr QSize usualSize(560, 480);
constexpr int buttonPadding = 12;
constexpr qreal notesMargin = 8;
constexpr qreal listIndent = 20;
constexpr qreal titleSize = 1.25; // times that of the other words

// In the order in which they stand.
enum Header { Title, Offer, Age, Count, Notes };

// Shows what it is given and asks nobody for anything else.
class NotesBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int, const QUrl &) override { return {}; }
};

} // namespace

UpdateDialog::UpdateDialog(const ReleasedVersions &versions, const QDate &today, Occasion occasion, QWidget *parent)
    : QDialog(parent)
    , m_notes(new NotesBrowser(this))
    , m_error(new QLabel(this))
    , m_skip(new QPushButton(tr("Skip this version"), this))
    , m_later(new QPushButton(tr("Remind later"), this))
    , m_install(new QPushButton(tr("Install update"), this))
{
    setWindowTitle(tr("Update available!"));
    auto *words = new QVBoxLayout;
    words->setSpacing(8);
    createHeaders(words);
    createNotes();
    createButtons(occasion);
    auto *top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(makeIconLabel(this), 0, Qt::AlignTop);
    top->addLayout(words, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_skip);
    buttons->addStretch();
    buttons->addWidget(m_later);
    buttons->addWidget(m_install);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->setSpacing(12);
    layout->addLayout(top);
    layout->addWidget(m_headers[Notes]);
    layout->addWidget(m_notes, 1);
    layout->addWidget(m_error);
    layout->addLayout(buttons);
    resize(usualSize);
    fill(versions, today);
    showError({});
}

void UpdateDialog::createHeaders(QVBoxLayout *layout)
{
    const QStringList texts = {tr("A new version of <b>%appName</b> is available!"),
                               tr("%appName <b>%newVersion</b> is available - you have <b>%oldVersion</b>. Would you "
                                  "like to download it now?"),
                               tr("Your version was released more than <b>%releasePeriod</b> ago."),
                               tr("Since then, <b>%numUpdates</b> versions have been released."), tr("Release notes:")};
    for (const QString &text : texts) {
        auto *header = new QLabel(text, this);
        header->setTextFormat(Qt::RichText);
        header->setWordWrap(true);
        m_headers.append(header);
        if (m_headers.size() <= Notes)
            layout->addWidget(header);
    }
    QFont font = m_headers[Title]->font();
    if (font.pixelSize() > 0) // a desktop that sets its font in pixels
        font.setPixelSize(qRound(font.pixelSize() * titleSize));
    else
        font.setPointSizeF(font.pointSizeF() * titleSize);
    m_headers[Title]->setFont(font);
    m_headers[Notes]->setBuddy(m_notes);
}

void UpdateDialog::createNotes()
{
    m_notes->setObjectName(QStringLiteral("releaseNotes"));
    m_notes->setAccessibleName(tr("Release notes"));
    m_notes->setOpenLinks(false);
    m_notes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_notes->setTabChangesFocus(true);
    m_notes->document()->setDocumentMargin(notesMargin);
    m_notes->document()->setIndentWidth(listIndent);
    m_notes->document()->setDefaultStyleSheet(QStringLiteral("ul { margin-top: 0; margin-bottom: 0 }"));
    m_error->setObjectName(QStringLiteral("labelError"));
    m_error->setStyleSheet(QStringLiteral("#labelError { color: red }"));
    m_error->setTextFormat(Qt::PlainText);
    m_error->setWordWrap(true);
}

void UpdateDialog::createButtons(Occasion occasion)
{
    m_skip->setObjectName(QStringLiteral("skipButton"));
    m_later->setObjectName(QStringLiteral("latterButton"));
    m_install->setObjectName(QStringLiteral("installButton"));
    for (QPushButton *button : {m_skip, m_later, m_install}) {
        button->setAutoDefault(occasion == Occasion::Asked);
        button->setMinimumWidth(button->sizeHint().width() + buttonPadding); // some styles leave none
    }
    if (occasion == Occasion::Asked) {
        m_install->setDefault(true);
        m_install->setFocus();
    } else {
        m_notes->setFocus();
        setAttribute(Qt::WA_ShowWithoutActivating);
    }
    connect(m_skip, &QPushButton::clicked, this, [this] { done(Skip); });
    connect(m_later, &QPushButton::clicked, this, [this] { done(RemindLater); });
    connect(m_install, &QPushButton::clicked, this, [this] { done(Install); });
}

void UpdateDialog::fill(const ReleasedVersions &versions, const QDate &today)
{
    const QString running = QCoreApplication::applicationVersion();
    const ReleasedVersions newer = versionsNewerThan(running, versions);
    const QString age = releaseAge(releaseDate(running, versions), today);
    for (QLabel *header : qAsConst(m_headers)) {
        QString text = header->text();
        text.replace(QLatin1String("%appName"), QCoreApplication::applicationName().toHtmlEscaped());
        text.replace(QLatin1String("%oldVersion"), running.toHtmlEscaped());
        text.replace(QLatin1String("%newVersion"),
                     newer.isEmpty() ? QString() : shownVersion(newer.first().version).toHtmlEscaped());
        text.replace(QLatin1String("%numUpdates"), QString::number(newer.size()));
        text.replace(QLatin1String("%releasePeriod"), age);
        header->setText(text);
    }
    m_headers[Age]->setHidden(age.isEmpty());
    // "Since then" needs the line above it, and "versions" more than one.
    m_headers[Count]->setHidden(age.isEmpty() || newer.size() < 2);
    const QString notes = releaseNotes(newer);
    m_notes->setHtml(notes);
}

void UpdateDialog::showError(const QString &text)
{
    m_error->setText(text);
    m_error->setHidden(text.isEmpty());
}
