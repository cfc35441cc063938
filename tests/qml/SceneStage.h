// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/SearchProvider.h"
#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "ui/AppPalette.h"
#include "ui/LyricsEdit.h"

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>
#include <QVariantList>

class QQmlEngine;

// What the window gives the scene, for documents under test: the program's own models and edit, without a window.
class SceneStage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LyricsEdit *lyricsEdit READ lyricsEdit CONSTANT)

public:
    SceneStage();
    ~SceneStage() override;

    [[nodiscard]] LyricsEdit *lyricsEdit() { return &m_edit; }

    // The list holds copies of these samples alone, in this order; their tags are read later.
    Q_INVOKABLE void showSongs(const QStringList &samples);
    // The item of a row of the whole list.
    Q_INVOKABLE ModelItem *song(int row) const;
    // As the window has it.
    Q_INVOKABLE QString searchEngine(const QString &name) const { return SearchProvider().effectiveName(name); }
    // The folder with the copies.
    Q_INVOKABLE QUrl folder() const;

signals:
    // As the window has them.
    void typedNamesAsked();
    void typedNamesWanted(const QVariantList &ids);

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);

private:
    QTemporaryDir m_folder;
    AppPalette m_palette;
    Settings m_settings;
    FolderScanner m_scanner;
    MainModel m_model;
    ProxyModel m_proxy;
    LyricsEdit m_edit;
};
