// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWidget>

#include <utility>

class MainModel;
class SceneEngine;

// The scene inside the main window: makes it from its document, gives it what it works on and serves its pictures.
class SceneWidget : public QQuickWidget
{
    Q_OBJECT

public:
    // Objects that the scene knows by these names. Not owned; they must outlive the widget.
    using Names = QList<std::pair<QString, QObject *>>;

    // The engine is for this scene alone and must outlive the widget. Covers are those of the model, which must outlive
    // it as well.
    SceneWidget(SceneEngine *engine, const Names &names, const MainModel *model, QWidget *parent);
    ~SceneWidget() override;

    // Why the scene could not be loaded, in words for the user; empty when it could.
    [[nodiscard]] QString loadErrors() const;

    // Connects a signal of the scene's root, which has no C++ pointer, to a slot of `receiver`. Both are given by their
    // normalized signatures: "listRemoveAll()". Nothing when the root lacks the signal.
    void connectRoot(const char *signal, QObject *receiver, const char *slot) const;

    // Width of the list of songs in pixels; 0 when there is no scene. A width that is not above 0 is not set.
    [[nodiscard]] int listWidth() const;
    void setListWidth(int width);

    // While the window is blocked by a dialog, the scene's shortcuts do nothing.
    void setBlocked(bool blocked);

    // Leaves Del and Ctrl+A to the text of the scene that has the focus, although actions of the window have them as
    // shortcuts. Texts that can be edited ask for these keys by themselves, those that can only be read do not (Qt
    // 5.15): Del in the lyrics would remove songs from the list.
    bool eventFilter(QObject *watched, QEvent *event) override;

    // The size in pixels below which the scene is cut, which grows with the desktop's text; empty without a scene.
    [[nodiscard]] QSize leastSize() const;

public slots:
    // Gives the keyboard to the lyrics that are edited.
    void focusLyrics();

signals:
    // Once, from the event loop, and a moment before the next: time for what can be done in another thread while the
    // scene makes what its first frame did without. Never where no frame comes.
    void firstFramePainted();
    // Once, from the event loop: the first frame is on the screen, or none has come for two seconds, as in a window
    // that starts minimized. The scene is told before this and makes what that frame could do without.
    void firstFrameShown();
    // A part of the scene that is made later cannot be made, as when a plugin is broken; the reason is Qt's. No first
    // frame is told of when it comes before that.
    void partFailed(const QString &reason);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    // A change of the language changes the scene's texts at once.
    void changeEvent(QEvent *event) override;
    // The Tab key goes round in the scene as one part of the window: its last item hands on to the window's buttons,
    // and from these it comes in at the first one.
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] QQuickItem *firstTabStop() const;
    void watchFocus();
    void watchText(QQuickItem *item);
    void rescueFocus();
    void endFirstFrame();
    Q_SLOT void reportPart(const QUrl &source);

    QPointer<QQuickItem> m_focusedText;
    QMetaObject::Connection m_focusHidden; // whatever has the keyboard was hidden
    bool m_isRendered = false;             // what is painted before that shows nothing of the scene
    bool m_isFirstPaint = true;
    bool m_isFirstFrame = true;
    bool m_isPartMissing = false;
};
