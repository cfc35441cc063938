// SPDX-License-Identifier: MIT
#pragma once

#include "tags/SaveJournal.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

namespace tags {

// Undoes at the start of the program the saves that a killed run was cut off in, each in a thread of its own: a disk
// that does not answer holds up nobody, and when the program ends such a thread ends with it. A song whose save is not
// undone yet cannot be saved meanwhile (SaveJournal::awaitsRestoring()).
class SavesMending : public QObject
{
    Q_OBJECT

public:
    // Takes what is left over in the folder (tags/SaveJournal.h), and begins. To be made before anything is saved.
    explicit SavesMending(const QString &folder, QObject *parent = nullptr);
    ~SavesMending() override;

    // What is known by now: songs whose mending is not done yet are among the waiting ones.
    [[nodiscard]] MendedSaves result() const;
    [[nodiscard]] bool isDone() const;

    // A function for any thread that blocks until all is mended, but not for longer than this. It may outlive the
    // object.
    [[nodiscard]] std::function<void()> waiter(std::chrono::milliseconds longest) const;

signals:
    // All is mended that can be. Not emitted when there was nothing to mend.
    void done();

private:
    struct Work;

    const std::shared_ptr<Work> m_work;
};

} // namespace tags
