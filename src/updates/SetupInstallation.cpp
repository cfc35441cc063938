// SPDX-License-Identifier: MIT
#include "updates/SetupInstallation.h"

#include "updates/SetupVerifier.h"

#include <QFile>

SetupInstallation::SetupInstallation(const UpdateEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_keys(environment.keys)
    , m_open(environment.open)
{
}

SetupInstallation::~SetupInstallation() = default;

void SetupInstallation::setStep(Step step)
{
    if (std::exchange(m_step, step) != step)
        emit changed();
}

void SetupInstallation::begin(const QString &setupPath, const ReleasedVersion &version)
{
    if (isBusy())
        return;
    if (m_step == Step::Asking) {
        ask();
        return;
    }
    m_setupPath = setupPath;
    m_verifier = std::make_shared<SetupVerifier>(setupPath, version, m_keys);
    connect(m_verifier.get(), &QThread::finished, this, &SetupInstallation::verified);
    m_verifier->start();
    setStep(Step::Checking);
}

void SetupInstallation::abort()
{
    m_verifier.reset();
    setStep(Step::None);
}

void SetupInstallation::verified()
{
    // A call that was queued by one that was dropped says nothing of another.
    if (m_step != Step::Checking || !m_verifier->isFinished())
        return;
    if (m_verifier->isGood()) {
        setStep(Step::Asking);
        ask();
        return;
    }
    if (m_verifier->isForged())
        QFile::remove(m_setupPath); // or the next check would take it for a complete download
    fail("the setup file is not what the maker signed");
}

void SetupInstallation::ask()
{
    const auto agreed = [this, known = std::weak_ptr<SetupVerifier>(m_verifier)] {
        // As long as the verifier is there, so is this. The user may be asked twice and agree twice.
        if (!known.expired() && m_step == Step::Asking)
            open();
    };
    if (m_question)
        m_question(agreed);
    else
        agreed();
}

void SetupInstallation::open()
{
    if (!m_verifier->isGood()) { // any more
        fail("the setup file has changed since it was checked");
        return;
    }
    setStep(Step::Opening);
    m_open(m_setupPath, [this, known = std::weak_ptr<SetupVerifier>(m_verifier)](bool opened) {
        if (known.expired())
            return;
        if (opened)
            emit handedOver();
        else
            fail("nothing on this desktop opens the setup file");
    });
}

void SetupInstallation::fail(const char *reason)
{
    abort();
    emit failed(reason);
}
