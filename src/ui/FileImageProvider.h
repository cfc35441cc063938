// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

class MainModel;

// Serves the covers of the songs to the scene, as "image://file-cover/<id of the song>". A song without a cover, or no
// song of that id, is an empty image, and so are the ids "default" and "empty".
//
// It reads the model, so the scene must not load these images asynchronously: that would call it from another thread.
class FileImageProvider : public QQuickImageProvider
{
public:
    FileImageProvider();

    // Not owned. Without a model every image is empty.
    void setModel(const MainModel *model) { m_model = model; }

    // The cover within the requested size, or within 32 by 32 when none is requested; its proportions are kept.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    [[nodiscard]] QImage cover(const QString &id) const;

    const MainModel *m_model = nullptr;
};
