// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <chrono>
#include <random>

class Application;
class ModelItem;

// Uses the program's list as a restless person at its window would: adds, searches, edits and removes songs in random
// order.
class Soak
{
public:
    // `app` is not owned. So many songs are made in a temporary folder, in subfolders of fifty.
    Soak(Application &app, int songs, quint32 seed);

    // Works at random for that long, then waits until nothing is under way.
    void work(std::chrono::milliseconds time);
    // Compares the songs of the list with their files, once nothing is under way. What is wrong, in words; empty when
    // all is right.
    [[nodiscard]] QStringList faults() const;
    // Empties the list and waits until its songs are deleted.
    void clear();
    // What was done so far, for a person who watches.
    [[nodiscard]] QString summary() const;

private:
    void makeSongs(int count);
    void doSomething();
    void addSome();
    void removeSome();
    void searchSome();
    void editOne();
    [[nodiscard]] QUrl anyAlbum();
    [[nodiscard]] ModelItem *anyItem();
    [[nodiscard]] bool isUnderWay(const ModelItem &item) const;
    [[nodiscard]] bool settled() const;
    [[nodiscard]] QString faultOf(const ModelItem &item) const;
    // From 0 to below `bound`, which is positive.
    [[nodiscard]] int below(int bound) { return static_cast<int>(m_random() % static_cast<quint32>(bound)); }

    Application &m_app;
    QTemporaryDir m_folder;
    QList<QUrl> m_songs;
    std::mt19937 m_random;
    int m_added = 0;
    int m_searched = 0;
    int m_edited = 0;
    int m_removed = 0;
};
