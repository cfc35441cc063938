// SPDX-License-Identifier: MIT
#pragma once

#include "tags/SaveJournal.h"

#include <QObject>

#include <memory>

namespace tags {

// Undoes at the start of the program the saves that a killed run was cut off in, each in a thread of its own: a disk
// that does not answer holds up nobody, and when the program ends such a thread ends with it. A song whose save is not
// undone yet cannot be saved meanwhile (SaveJournal::awaitsRestoring()), and what is read from it may be torn.
class SavesMending : public QObject
{
    Q_OBJECT

public:
    // Takes what is left over in the folder (tags/SaveJournal.h), and begins. To be made before anything is saved.
    explicit SavesMending(const QString &folder, QObject *parent = nullptr);
    ~SavesMending() override;

    // What is known by now, with the songs that are still being mended.
    [[nodiscard]] MendedSaves result() const;
    // All is mended that can be.
    [[nodiscard]] bool isDone() const;

signals:
    // After each song.
    void progressed();

private:
    struct Work;

    const std::shared_ptr<Work> m_work;
};

} // namespace tags
