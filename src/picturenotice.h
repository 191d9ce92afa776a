// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class PictureNoticeWindow;
class QRect;
class QWidget;

/**
 * A few calm lines over the picture of a player: a heading, shortened in its middle to one line,
 * and a text, which wraps; or a text alone, with a bar that moves while something is under way.
 *
 * The backend draws into the player's own window at any time, and the player's updates are off
 * meanwhile. So the lines have a window of their own within the player's, which goes with it into
 * the full screen. It takes neither keyboard nor mouse: clicks and drops meet the player below.
 *
 * GUI thread only. A child of the player's widget.
 */
class PictureNotice : public QObject
{
    Q_OBJECT

public:
    enum Place
    {
        Middle,
        Top
    };

    explicit PictureNotice(QWidget *player);
    ~PictureNotice() override;

    /** Shows the lines until others come or clear(); @p heading may be empty. */
    void tell(const QString &heading, const QString &text, Place place = Middle);
    /** The same for @p ms milliseconds. */
    void tellFor(int ms, const QString &text);
    /** Shows a text with a moving bar. */
    void tellProgress(const QString &text);
    void clear();

    bool isShown() const { return !mText.isEmpty(); }
    /** What is told at the moment; empty for nothing. */
    QString heading() const { return mHeading; }
    QString text() const { return mText; }
    bool isProgress() const { return mIsProgress; }
    /** Where the lines lie, in the player's coordinates; empty when they cannot be seen. */
    QRect geometry() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const QString &heading, const QString &text, Place place, bool isProgress);
    void refresh();

    QWidget *mPlayer = nullptr;            // the parent
    QPointer<PictureNoticeWindow> mWindow; // goes with the player's window, and is made anew
    QString mHeading;
    QString mText;
    Place mPlace = Middle;
    bool mIsProgress = false;
    QTimer mEnd;
    QTimer mRefresh; // when the change at hand is done
};
