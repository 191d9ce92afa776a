// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWebEnginePage>

/**
 * The web page that holds the map, in which a provider's script may do what a map needs and no
 * more. It shows the program's own pages, or an empty one if a script wants that, and nothing that
 * a script asks of the user or of the desktop comes to pass: no window, dialog, download or
 * permission.
 *
 * GUI thread only.
 */
class MapPage : public QWebEnginePage
{
    Q_OBJECT

public:
    /** The profile must live longer than the page. */
    MapPage(QWebEngineProfile *profile, QObject *parent);

signals:
    /** A link was clicked, by a user or a script. */
    void linkClicked(const QUrl &url);
    /** A link or a script wants a window, which it does not get. */
    void windowWanted();

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    bool certificateError(const QWebEngineCertificateError &error) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &oldFiles,
                            const QStringList &acceptedTypes) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    void javaScriptAlert(const QUrl &origin, const QString &text) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &text) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &text, const QString &suggestion,
                          QString *answer) override;

private:
    void switchOffBrowser();
    void removeWebRtc();
    void refuseRequests();
};
