// SPDX-License-Identifier: MIT
#pragma once

#include "app/Application.h"
#include "network/Endpoints.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QSettings>
#include <QVariantMap>

#include <functional>
#include <memory>

// An application object on a settings file of its own; like the program, one at a time.
class Stage
{
public:
    // What stands on the disk is made ready before the object is made.
    explicit Stage(const QVariantMap &stored = {}, const std::function<void(const Stage &)> &prepare = {})
    {
        {
            QSettings store(settingsFile, QSettings::NativeFormat);
            for (auto entry = stored.begin(); entry != stored.end(); ++entry)
                store.setValue(entry.key(), entry.value());
        }
        if (prepare)
            prepare(*this);
        reloadEndpoints();
        m_app = std::make_unique<Application>(m_argc, m_argv, QStringLiteral(VERSEWELL_READER));
    }

    Application *operator->() { return m_app.get(); }
    Application &operator*() { return *m_app; }
    QString lockFile() const { return folder.path("Quillmarsh/Versewell.lock"_s); }

    const TestFolder folder;
    const QString settingsFile = folder.holdSettings();

private:
    int m_argc = 1;
    char m_name[16] = "tst_application";
    char *m_argv[2] = {m_name, nullptr};
    std::unique_ptr<Application> m_app;
};
