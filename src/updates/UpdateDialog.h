// SPDX-License-Identifier: MIT
#pragma once

#include "updates/ReleasedVersion.h"

#include <QDate>
#include <QDialog>
#include <QStringList>

class QLabel;
class QPushButton;
class QTextBrowser;
class QVBoxLayout;

// Offers a newer version, with the release notes of all versions since the running one. It ends with an Answer in
// finished().
//
// What comes from the maker's site is shown as text and nothing is loaded for it.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    enum Answer { RemindLater = Rejected, Install = Accepted, Skip };

    // Asked: the user waits for the answer. Unasked: it comes amid other work, so no key that was meant for that may
    // answer it.
    enum class Occasion { Asked, Unasked };

    // The versions with the newest last, which must be newer than the running program.
    UpdateDialog(const ReleasedVersions &versions, const QDate &today, Occasion occasion, QWidget *parent = nullptr);

public slots:
    // An empty text hides the line.
    void showError(const QString &text);

private:
    void createHeaders(QVBoxLayout *layout);
    void createNotes();
    void createButtons(Occasion occasion);
    void fill(const ReleasedVersions &versions, const QDate &today);

    QVector<QLabel *> m_headers;
    QTextBrowser *m_notes;
    QLabel *m_error;
    QPushButton *m_skip;
    QPushButton *m_later;
    QPushButton *m_install;
};
