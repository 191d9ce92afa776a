// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "mapwebview.h"
#include "patience.h"

#include <QDesktopServices>
#include <QDialog>
#include <QNetworkDatagram>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>
#include <QUdpSocket>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <algorithm>
#include <memory>

namespace {

const QString GoogleScript = QStringLiteral("https://maps.googleapis.com/maps/api/js");
const QString OwnHost = QStringLiteral("https://*.gstatic.com");
const QString OtherProvider = QStringLiteral("https://tile.openstreetmap.org");
constexpr QRgb SecretColour = qRgb(255, 0, 255);

// What the attacks have in common. The fence comes when what they began has had its time.
const char Prelude[] = R"(
    window.leaks = [];
    const leak = (...what) => leaks.push(what.join(' '));
    const wait = (ms) => new Promise((resolve) => setTimeout(resolve, ms));
    const put = (name, fields) => {
        const element = Object.assign(document.createElement(name), fields);
        (name === 'link' ? document.head : document.body).append(element);
        return element;
    };
    const inSight = 'position: fixed; left: 0; top: 0; width: 90px; height: 90px; z-index: 9999';
    const frame = async (fields) => {
        const element = put('iframe', {...fields, style: inSight});
        await Promise.race([new Promise((resolve) => { element.onload = resolve; }), wait(500)]);
        return element;
    };
    const text = (address) => new Promise((resolve, reject) => {
        const request = new XMLHttpRequest();
        request.open('GET', address);
        request.onload = () => resolve(request.responseText);
        request.onerror = reject;
        request.send();
    });
    const inWorker = (code, type = Worker) =>
        new type(URL.createObjectURL(new Blob([code], {type: 'text/javascript'})));
    (async () => {
        try {
            %1
        } catch (error) {
            console.log(String(error));
        }
        await wait(400);
        new Image().src = own + 'fence';
    })();)";

/** Notes who connects, and answers all with the same. */
class Server : public QTcpServer
{
public:
    Server()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, &Server::onConnection);
    }

    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }

    QStringList asked;
    int connections = 0;
    QByteArray script;
    QByteArray frame;
    QString redirection; // where "/redirect" leads

private:
    void onConnection()
    {
        ++connections;
        QTcpSocket *socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

    void answer(QTcpSocket *socket)
    {
        const QString path = QString::fromLatin1(socket->readAll()).section(' ', 1, 1);
        asked.append(path);
        const bool isScript = path.startsWith("/script");
        const QByteArray body = isScript ? script : path == "/frame" ? frame : "seen";
        if (path == "/redirect")
            socket->write("HTTP/1.1 302 Found\r\nLocation: " + redirection.toLatin1() + "\r\n");
        else
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: " +
                          QByteArray(isScript ? "text/javascript" : "text/html") + "\r\n");
        socket->write("Access-Control-Allow-Origin: *\r\nConnection: close\r\nContent-Length: " +
                      QByteArray::number(body.size()) + "\r\n\r\n" + body);
        socket->disconnectFromHost();
    }
};

void replaceIn(const QString &path, const QString &from, const QString &to)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadWrite), qPrintable(path));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(file.resize(0) && file.seek(0));
    file.write(QString(text).replace(from, to).toUtf8());
}

bool writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace

/**
 * The program's own pages with a hostile script in the provider's place, which comes from a server
 * of this machine and may reach that one only.
 */
class TestMapSafety : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void attacks_data();
    void attacks();
    void permitted_data();
    void permitted();
    void requests_data();
    void requests();
    void realClicks_data();
    void realClicks();
    void pageThatWantsToStay();
    void endlessAlerts();
    void brokenTables_data();
    void brokenTables();
    void openInBrowser(const QUrl &url) { mOpened.append(url.toString()); }

private:
    void start(const QString &script);
    QString ask(const QString &expression);
    QString mapsFile(const char *name) const;
    QStringList harm();
    void click(const QString &selector, const char *button = "1");

    QTemporaryDir mHome;
    Server mOwn;
    Server mOther;
    Server mOtherProvider;
    QUdpSocket mUdp;
    std::unique_ptr<QDialog> mWindow;
    MapWebView *mMap = nullptr;
    QWebEngineView *mView = nullptr;
    QUrl mPage;
    QStringList mOpened;
};

void TestMapSafety::initTestCase()
{
    const QString folder = QCoreApplication::applicationDirPath() + "/maps";
    QDir(folder).removeRecursively();
    QCOMPARE(QProcess::execute("cp", {"-r", MAPS_FOLDER, folder}), 0);
    mPage = QUrl::fromLocalFile(mapsFile("WG_GoogleMapIndex_en_talvor.html"));
    replaceIn(mapsFile("keys.js"), "google: ''", "google: 'secret'");
    replaceIn(mapsFile("google.js"), GoogleScript, mOwn.address() + "/script");
    replaceIn(mapsFile("openstreetmap.js"), OtherProvider, mOtherProvider.address());
    for (const QString &page : {mPage.toLocalFile(), mapsFile("OpenStreetMap.html")}) {
        replaceIn(page, OwnHost, mOwn.address());
        replaceIn(page, OtherProvider, mOtherProvider.address());
    }
    if (QFile::exists(mapsFile("hosts.json"))) {
        replaceIn(mapsFile("hosts.json"), OwnHost, mOwn.address());
        replaceIn(mapsFile("hosts.json"), OtherProvider, mOtherProvider.address());
    }
    mOwn.frame = "<script>new WebSocket('" + mOther.address().replace("http", "ws").toLatin1() +
                 "')</script>";
    mOwn.redirection = mOther.address() + "/redirected";

    const QByteArray page =
        "<!DOCTYPE html><body bgcolor='#ff00ff'>secret<script>window.secret = 1;"
        "var leaked = 'secret';</script>";
    QVERIFY(writeFile(mHome.filePath("secret.html"), page));
    QVERIFY(writeFile(mHome.filePath("secret.js"), "window.leaks.push('secret script');"));
    QVERIFY(writeFile(mHome.filePath("secret.css"), "body { --secret: 1; }"));
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(SecretColour);
    QVERIFY(image.save(mHome.filePath("secret.png")));
    QVERIFY(mUdp.bind(QHostAddress::LocalHost, mOwn.serverPort()));
    for (const char *scheme : {"https", "http", "file", "mailto", "tel"})
        QDesktopServices::setUrlHandler(scheme, this, "openInBrowser");
}

void TestMapSafety::init()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    Configuration::GetInstance()->setLanguage(EnglishUS);
    Configuration::GetInstance()->setMaps(MapGoogle);
}

void TestMapSafety::cleanup()
{
    mWindow.reset();
}

QString TestMapSafety::mapsFile(const char *name) const
{
    return QCoreApplication::applicationDirPath() + "/maps/" + name;
}

/** Shows the map, with this for the provider's script. */
void TestMapSafety::start(const QString &script)
{
    const QString names =
        QString("const own = '%1/'; const other = '%2/'; const otherProvider = '%3/';"
                "const home = 'file://%4/'; const maps = 'file://%5'; const udp = %6;")
            .arg(mOwn.address(), mOther.address(), mOtherProvider.address(), mHome.path(),
                 mapsFile(""))
            .arg(mUdp.localPort());
    mOwn.script = ("(() => {" + names + QString(Prelude).arg(script) + "})();").toUtf8();
    for (Server *server : {&mOwn, &mOther, &mOtherProvider}) {
        server->asked.clear();
        server->connections = 0;
    }
    while (mUdp.hasPendingDatagrams())
        mUdp.receiveDatagram();
    mOpened.clear();
    mWindow = std::make_unique<QDialog>();
    mMap = new MapWebView(mWindow.get());
    (new QVBoxLayout(mWindow.get()))->addWidget(mMap);
    mView = mMap->findChild<QWebEngineView *>();
    mWindow->setGeometry(100, 120, 320, 280);
    mWindow->show();
    QTRY_VERIFY(mOwn.asked.contains("/fence"));
}

QString TestMapSafety::ask(const QString &expression)
{
    const auto answer = std::make_shared<QString>();
    mView->page()->runJavaScript(expression, [answer](const QVariant &value) {
        *answer = value.toString();
        QTestEventLoop::instance().exitLoop();
    });
    // QTest::qWait() starves the web engine.
    QTestEventLoop::instance().enterLoop(PatienceMs / 1000);
    return *answer;
}

/** What the script has done that it must not. */
QStringList TestMapSafety::harm()
{
    QStringList harm = mOpened;
    for (const Server *server : {&mOther, &mOtherProvider}) {
        if (server->connections > 0)
            harm.append("reached " + server->asked.join(' '));
    }
    if (mUdp.hasPendingDatagrams())
        harm.append("sent a datagram");
    if (mView->page()->url().adjusted(QUrl::RemoveFragment) != mPage)
        harm.append("left for " + mView->page()->url().toString());
    if (!mView->isVisible() || mView->size() != mMap->size())
        harm.append("has changed the window");
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != mWindow.get() && window != mView)
            harm.append(window->metaObject()->className());
    }
    const QString leaks = ask("'leaks: ' + leaks.join(', ')"); // no answer is no good one
    if (leaks != "leaks: ")
        harm.append(leaks.isEmpty() ? "is silent" : leaks);
    const QImage image = mView->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto *first = reinterpret_cast<const QRgb *>(image.constBits());
    if (std::count(first, first + image.width() * image.height(), SecretColour) > 0)
        harm.append("shows a secret");
    return harm;
}

void TestMapSafety::attacks_data()
{
    QTest::addColumn<QString>("script");
    const struct
    {
        const char *name;
        const char *script;
    } rows[] = {
        {"request of a file", "leak(await text(home + 'secret.html'))"},
        {"request of a file in the maps folder", "leak(await text(maps + 'keys.js'))"},
        {"frame of a file", "const f = await frame({src: home + 'secret.html'});"
                            "leak(f.contentDocument.body.innerHTML)"},
        {"frame of keys", "const f = await frame({src: maps + 'keys.js'});"
                          "leak(f.contentDocument.body.innerHTML)"},
        {"object of a file", "put('object', {data: home + 'secret.html', style: inSight})"},
        {"embedded file", "put('embed', {src: home + 'secret.html', style: inSight})"},
        {"script of a file", "put('script', {src: home + 'secret.js'})"},
        {"script up the tree",
         "put('script', {src: maps + '../'.repeat(30) + home.slice(8) + 'secret.js'})"},
        {"script up the encoded tree",
         "put('script', {src: maps + '%2e%2e/'.repeat(30) + home.slice(8) + 'secret.js'})"},
        {"script of a host's file",
         "put('script', {src: home.replace('file://', 'file://localhost') + 'secret.js'})"},
        {"table of the hosts",
         "put('script', {src: maps + 'hosts.json', onload: () => leak('the table')});"
         "await wait(300)"},
        {"keys of all providers",
         "put('script', {src: maps + 'keys.js', onload: () => leak('the keys')});"
         "await wait(300)"},
        {"style of a file", "put('link', {rel: 'stylesheet', href: home + 'secret.css'});"
                            "await wait(300);"
                            "leak(getComputedStyle(document.body).getPropertyValue('--secret'))"},
        {"picture of a file", "const i = put('img', {src: home + 'secret.png'});"
                              "await wait(300); i.width > 40 && leak('a picture')"},
        {"existence of a file", "const i = new Image(); i.onload = () => leak('it exists');"
                                "i.src = home + 'secret.png'"},
        {"file read in a worker", "const w = inWorker(`const r = new XMLHttpRequest();"
                                  "    r.open('GET', '${home}secret.html');"
                                  "    r.onload = () => postMessage(r.responseText); r.send()`);"
                                  "w.onmessage = ({data}) => leak(data); await wait(500)"},

        {"fetch of a host", "await fetch(other, {mode: 'no-cors'})"},
        {"request of another provider", "await fetch(otherProvider, {mode: 'no-cors'})"},
        {"redirected picture", "put('img', {src: own + 'redirect'}); await wait(300)"},
        {"redirected frame", "await frame({src: own + 'redirect'})"},
        {"redirected script", "put('script', {src: own + 'redirect'}); await wait(300)"},
        {"picture", "put('img', {src: other})"},
        {"picture of another provider", "put('img', {src: otherProvider})"},
        {"script of a host", "put('script', {src: other + 'x.js'})"},
        {"style of a host", "put('link', {rel: 'stylesheet', href: other})"},
        {"picture of a style", "document.body.style.background = `url(${other})`"},
        {"frame of a host", "await frame({src: other})"},
        {"frame that goes on to a host",
         "await frame({srcdoc: `<meta http-equiv=refresh content='0;url=${other}'>`});"
         "await wait(500)"},
        {"frame of data that asks a host",
         "await frame({src: `data:text/html,<img src=${other}><script>fetch('${other}')<` +"
         "    `/script>`}); await wait(300)"},
        {"frame of its own that asks a host",
         "const f = await frame({}); await f.contentWindow.fetch(other, {mode: 'no-cors'})"},
        {"frame without a policy that asks a host",
         "const code = `<img src=${other}><script>new WebSocket('${other.replace('http', 'ws')}')<`"
         "    + `/script>`;"
         "await frame({src: URL.createObjectURL(new Blob([code], {type: 'text/html'}))});"
         "await wait(300)"},
        {"object of a host", "put('object', {data: other})"},
        {"embedded host", "put('embed', {src: other})"},
        {"video", "put('video', {src: other, autoplay: true, muted: true})"},
        {"beacon", "navigator.sendBeacon(other, 'x')"},
        {"web socket", "new WebSocket(other.replace('http', 'ws'))"},
        {"web socket of a worker", "inWorker(`new WebSocket('${other.replace('http', 'ws')}')`)"},
        {"web socket of a frame of the provider's",
         "await frame({src: own + 'frame'}); await wait(300)"},
        {"fetch of a worker", "inWorker(`fetch('${other}', {mode: 'no-cors'})`)"},
        {"script of a worker", "inWorker(`importScripts('${other}')`)"},
        {"fetch of a shared worker", "inWorker(`fetch('${other}', {mode: 'no-cors'})`,"
                                     "    SharedWorker)"},
        {"web socket of a shared worker",
         "inWorker(`new WebSocket('${other.replace('http', 'ws')}')`, SharedWorker)"},
        {"worker of a worker", "inWorker(`new Worker(URL.createObjectURL(new Blob(["
                               "    \"fetch('${other}', {mode: 'no-cors'});"
                               "      new WebSocket('${other.replace('http', 'ws')}')\"])))`)"},
        {"prefetch", "put('link', {rel: 'prefetch', href: other})"},
        {"preconnection", "put('link', {rel: 'preconnect', href: other}); await wait(500)"},
        {"icon", "put('link', {rel: 'icon', href: other})"},
        {"form", "put('form', {action: other, method: 'post'}).submit()"},
        {"form in a frame", "const f = await frame({name: 'target'});"
                            "put('form', {action: other, target: 'target'}).submit()"},
        {"form in a window", "put('form', {action: other, target: '_blank'}).submit()"},
        {"base", "put('base', {href: other}); put('img', {src: 'x.png'})"},
        {"WebRTC by UDP",
         "const c = new RTCPeerConnection({iceServers: [{urls: `stun:127.0.0.1:${udp}`}]});"
         "c.createDataChannel('x'); await c.setLocalDescription(await c.createOffer());"
         "await wait(500)"},
        {"WebRTC by TCP",
         "const c = new RTCPeerConnection({iceServers: [{username: 'u', credential: 'c',"
         "    urls: `turn:${other.slice(7, -1)}?transport=tcp`}]});"
         "c.createDataChannel('x'); await c.setLocalDescription(await c.createOffer());"
         "await wait(500)"},
        {"WebRTC of a frame",
         "const f = document.createElement('iframe'); document.body.append(f);"
         "const c = new f.contentWindow.RTCPeerConnection({"
         "    iceServers: [{urls: `stun:127.0.0.1:${udp}`}]});"
         "c.createDataChannel('x'); await c.setLocalDescription(await c.createOffer());"
         "await wait(500)"},

        {"window", "window.open(other)"},
        {"empty window", "const w = window.open(''); w && leak('a window')"},
        {"location", "location.href = other"},
        {"location of another page", "location.href = maps + 'OpenStreetMap.html'"},
        {"location of a file", "location.href = home + 'secret.html'"},
        {"location of data", "location.href = 'data:text/html,x'"},
        {"location that is redirected", "location.href = own + 'redirect'"},
        {"location of a blob", "location.href = URL.createObjectURL(new Blob(['x']))"},
        {"frame of a file after all", "const f = await frame({}); "
                                      "f.contentWindow.location = home + 'secret.html'"},
        {"top location of a frame",
         "await frame({srcdoc: `<script>top.location.href = '${other}'<` + '/script>'})"},
        {"refresh", "put('meta', {httpEquiv: 'refresh', content: '0;url=' + other})"},
        {"clicked link", "put('a', {href: other}).click()"},
        {"clicked link to the web", "put('a', {href: 'https://example.org/'}).click()"},
        {"clicked link to a window", "put('a', {href: other, target: '_blank'}).click()"},
        {"clicked link to a window of its own",
         "put('a', {href: other, target: '_blank', rel: 'noopener'}).click()"},
        {"events of a click", "const a = put('a', {href: other});"
                              "for (const type of ['mousedown', 'mouseup', 'click'])"
                              "    a.dispatchEvent(new MouseEvent(type, {bubbles: true}))"},
        {"click of the middle button",
         "put('a', {href: other}).dispatchEvent(new MouseEvent('click', {button: 1}));"
         "put('a', {href: other}).dispatchEvent(new MouseEvent('click', {ctrlKey: true}))"},
        {"download", "put('a', {href: own + 'file', download: 'x'}).click();"
                     "put('a', {href: other, download: 'x'}).click()"},
        {"dialogs", "setTimeout(() => alert('x')); await wait(200)"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QString(row.script);
}

void TestMapSafety::attacks()
{
    QFETCH(QString, script);
    start(script);
    QCOMPARE(harm().join(" | "), QString());
}

void TestMapSafety::permitted_data()
{
    QTest::addColumn<QString>("asked");
    QTest::newRow("put('img', {src: own + 'tile.png'})") << "/tile.png";
    QTest::newRow("put('script', {src: own + 'more.js'})") << "/more.js";
    QTest::newRow("put('link', {rel: 'stylesheet', href: own + 'a.css'})") << "/a.css";
    QTest::newRow("inWorker(`importScripts('${own}work')`)") << "/work";
    QTest::newRow("eval(`put('img', {src: own + 'eval'})`)") << "/eval";
    QTest::newRow("put('img', {src: 'start.svg', onload() { put('img', {src: own + 'file'}) }})")
        << "/file";
    QTest::newRow("put('img', {src: document.createElement('canvas').toDataURL(),"
                  "onload() { put('img', {src: own + 'data'}) }})")
        << "/data";
}

void TestMapSafety::permitted()
{
    QFETCH(QString, asked);
    start(QString(QTest::currentDataTag()));
    QTRY_VERIFY2(mOwn.asked.contains(asked), qPrintable(mOwn.asked.join(' ')));
}

/** What a script asks the user for is answered at once, and without one. */
void TestMapSafety::requests_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("await new Promise((done) => navigator.geolocation.getCurrentPosition(done,"
                  "    ({code}) => done(code)))")
        << "1";
    QTest::newRow("await Notification.requestPermission()") << "denied";
    for (const char *request : {"{audio: true}", "{video: true}"})
        QTest::addRow("await navigator.mediaDevices.getUserMedia(%s)", request) << "Error";
    QTest::newRow("await navigator.mediaDevices.getDisplayMedia({video: true})") << "Error";
    QTest::newRow("await navigator.clipboard.readText()") << "Error";
    QTest::newRow("document.execCommand('copy')") << "false";
    QTest::newRow("document.execCommand('paste')") << "false";
    QTest::newRow("await document.body.requestFullscreen()") << "Error";
    QTest::newRow("await navigator.storage.persist()") << "false";
    QTest::newRow("(alert('x'), 'gone')") << "gone";
    QTest::newRow("confirm('x')") << "true";
    QTest::newRow("prompt('x')") << "null";
}

void TestMapSafety::requests()
{
    QFETCH(QString, answer);
    start(QString("document.body.requestPointerLock(); let answer = 'Error';"
                  "try { answer = String(%1); }"
                  "catch (error) { console.log(String(error)); } window.answer = answer;")
              .arg(QTest::currentDataTag()));
    QCOMPARE(ask("answer"), answer);
    QCOMPARE(harm().join(" | "), QString());
}

void TestMapSafety::click(const QString &selector, const char *button)
{
    const QString place =
        ask(QString("const r = document.querySelector('%1').getBoundingClientRect();"
                    "[(r.left + r.right) / 2, (r.top + r.bottom) / 2].map(Math.round).join()")
                .arg(selector));
    const QPoint point = mMap->mapToGlobal(QPoint(0, 0)) +
                         QPoint(place.section(',', 0, 0).toInt(), place.section(',', 1).toInt());
    QProcess::execute("xdotool", {"mousemove", QString::number(point.x()),
                                  QString::number(point.y()), "click", button});
}

void TestMapSafety::realClicks_data()
{
    QTest::addColumn<QString>("fields"); // of the link
    QTest::addColumn<QString>("onclick");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("opened");
    const QStringList web("https://example.org/a");
    const QString link = "href: 'https://example.org/a'";
    const QString scripted = "event.preventDefault(); ";
    QTest::newRow("link") << link << ""
                          << "1" << web;
    QTest::newRow("plain http") << "href: 'http://example.org/a'"
                                << ""
                                << "1" << QStringList("http://example.org/a");
    QTest::newRow("to a window") << link + ", target: '_blank'"
                                 << ""
                                 << "1" << web;
    QTest::newRow("to a window of its own") << link + ", target: '_blank', rel: 'noopener'"
                                            << ""
                                            << "1" << web;
    QTest::newRow("middle button") << link << ""
                                   << "2" << web;
    QTest::newRow("right button") << link << ""
                                  << "3" << QStringList();
    QTest::newRow("to a file") << "href: home + 'secret.html'"
                               << ""
                               << "1" << QStringList();
    QTest::newRow("to a mail") << "href: 'mailto:a@example.org'"
                               << ""
                               << "1" << QStringList();
    QTest::newRow("kept by a script") << link << scripted << "1" << QStringList();
    QTest::newRow("another link by a script")
        << link << scripted + "put('a', {href: other}).click()"
        << "1" << QStringList();
    QTest::newRow("no link, but one by a script") << ""
                                                  << "put('a', {href: other}).click()"
                                                  << "1" << QStringList();
    QTest::newRow("no link, but one to a window by a script")
        << ""
        << "put('a', {href: other, target: '_blank'}).click()"
        << "1" << QStringList();
    QTest::newRow("no link, but a window by a script") << ""
                                                       << "window.open(other)"
                                                       << "1" << QStringList();
    QTest::newRow("no link, but a location by a script") << ""
                                                         << "location.href = other"
                                                         << "1" << QStringList();
    QTest::newRow("no link, but a mail by a script") << ""
                                                     << "location.href = 'mailto:a@example.org'"
                                                     << "1" << QStringList();
    QTest::newRow("no link, but a form by a script")
        << ""
        << "put('form', {action: other, target: '_blank'}).submit()"
        << "1" << QStringList();
    QTest::newRow("no link, but a file chooser by a script")
        << ""
        << "put('input', {type: 'file'}).click()"
        << "1" << QStringList();
    QTest::newRow("no link, but the clipboard by a script")
        << ""
        << "document.execCommand('paste') && leak('pasted')"
        << "1" << QStringList();
    QTest::newRow("another link once clicked")
        << link << scripted + "event.target.href = other; event.target.click()"
        << "1" << QStringList();
    QTest::newRow("window by a script on a link") << link << scripted + "window.open(other)"
                                                  << "1" << web; // the one that was clicked
}

void TestMapSafety::realClicks()
{
    QFETCH(QString, fields);
    QFETCH(QString, onclick);
    QFETCH(QString, button);
    QFETCH(QStringList, opened);
    start(QString("const a = put('a', {id: 'link', textContent: 'link', %1});"
                  "a.style = 'position: fixed; left: 50px; top: 50px; z-index: 9999';"
                  "let isFirst = true;"
                  "const react = (event) => {"
                  "    if (!isFirst) return; isFirst = false; setTimeout(() => {"
                  "        new Image().src = own + 'clicked'; }, 300); %2 };"
                  "for (const type of ['click', 'auxclick']) a.addEventListener(type, react)")
              .arg(fields, onclick));
    click("#link", button.toLatin1());
    QTRY_VERIFY(mOwn.asked.contains("/clicked"));
    QTRY_COMPARE(mOpened.join(' '), opened.join(' '));
    mOpened.clear();
    QCOMPARE(harm().join(" | "), QString());
}

void TestMapSafety::pageThatWantsToStay()
{
    start("window.onbeforeunload = (event) => { event.preventDefault(); return ''; };"
          "put('p', {id: 'place', textContent: 'place'}).style ="
          "    'position: fixed; left: 50px; top: 50px; z-index: 9999'");
    click("#place"); // without which nobody is asked
    QTRY_COMPARE(ask("String(navigator.userActivation.hasBeenActive)"), QString("true"));
    const QString baidu = QUrl::fromLocalFile(mapsFile("BaiduMapIndex.html")).toString();
    mMap->setMapType(MapBaidu);
    QTRY_COMPARE(mView->page()->url().toString(), baidu);
}

void TestMapSafety::endlessAlerts()
{
    start("setTimeout(() => { for (;;) alert('x'); }, 1000)");
    QSignalSpy turns(new QTimer(mMap), &QTimer::timeout);
    auto *timer = mMap->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    timer->start(50);
    QTRY_VERIFY(turns.size() > 40);
    QVERIFY(!QApplication::activeModalWidget());
}

void TestMapSafety::brokenTables_data()
{
    QTest::addColumn<QByteArray>("table");
    const QByteArray address = mOwn.address().toLatin1();
    QTest::newRow("none") << QByteArray();
    QTest::newRow("cut") << QByteArray("{\"WG_GoogleMapIndex\": [\"" + address + "\"");
    QTest::newRow("no list") << QByteArray("{\"WG_GoogleMapIndex\": \"" + address + "\"}");
    QTest::newRow("no host") << QByteArray("{\"WG_GoogleMapIndex\": [\"*\", \"" + address + "\"]}");
    QTest::newRow("of another page") << QByteArray("{\"BaiduMapIndex\": [\"" + address + "\"]}");
}

/** Then the page has its own files. */
void TestMapSafety::brokenTables()
{
    QFETCH(QByteArray, table);
    QFile file(mapsFile("hosts.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    QVERIFY(writeFile(file.fileName(), table));
    mOwn.connections = 0;
    mWindow = std::make_unique<QDialog>();
    mMap = new MapWebView(mWindow.get());
    mView = mMap->findChild<QWebEngineView *>();
    mWindow->show();
    QTRY_VERIFY(ask("window.talvorMap ? talvorMap.state().message : ''").contains("Google Maps"));
    QCOMPARE(mOwn.connections, 0);
    QVERIFY(writeFile(file.fileName(), whole));
}

QTEST_MAIN(TestMapSafety)
#include "tst_mapsafety.moc"
