// SPDX-License-Identifier: MIT
#pragma once

#include "updates/ReleasedVersion.h"
#include "updates/UpdateEnvironment.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

class SetupVerifier;

// Hands a setup file to the desktop: looks whether the maker has signed it, asks the user whether the program may be
// left, and opens the file if it is still the one that was looked at. Main thread only; the file is read in a thread.
class SetupInstallation : public QObject
{
    Q_OBJECT

public:
    // Runs its argument, at once, later or never: when the user agrees to leave what would be lost.
    using Question = std::function<void(std::function<void()> then)>;

    // Uses the keys and the way to the desktop.
    explicit SetupInstallation(const UpdateEnvironment &environment, QObject *parent = nullptr);
    ~SetupInstallation() override;

    // Asked before the file is opened. None: nothing is asked.
    void setQuestion(Question question) { m_question = std::move(question); }

    // Whether the file is being checked or opened, which may take seconds.
    [[nodiscard]] bool isBusy() const { return m_step == Step::Checking || isOpening(); }
    // Whether the user has agreed to leave and the file is being opened.
    [[nodiscard]] bool isOpening() const { return m_step == Step::Opening; }

    // Nothing while it is busy. While the user has not agreed, asks once more. Ends with handedOver() or failed(), as a
    // rule from the event loop, or never, when the user does not agree.
    void begin(const QString &setupPath, const ReleasedVersion &version);
    // Drops what begin() began, at the latest after a block of the file.
    void abort();

signals:
    // Of isBusy() or isOpening().
    void changed();
    void handedOver();
    // With words for the log. What was begun is dropped before; a file that the maker did not sign is gone.
    void failed(const char *reason);

private:
    enum class Step { None, Checking, Asking, Opening };

    void setStep(Step step);
    void verified();
    void ask();
    void open();
    void fail(const char *reason);

    const QVector<QByteArray> m_keys;
    const decltype(UpdateEnvironment::open) m_open;
    Question m_question;
    Step m_step = Step::None;
    QString m_setupPath;
    std::shared_ptr<SetupVerifier> m_verifier; // of what is under way; holds what is compared with the path
};
