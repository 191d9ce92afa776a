// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gyrochartview.h"
#include "gyrosampling.h"
#include "patience.h"

#include <QtCharts/QChart>
#include <QtTest>

using namespace QtCharts;

namespace {
constexpr int WindowSize = 6000;

GyroData all(float value)
{
    return {value, -value, 0.0f};
}
} // namespace

class TestGyroChart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void yRange_data();
    void yRange();
    void window();
    void cursor();
    void samplesAreSeen();
    void secondsOfSamples_data();
    void secondsOfSamples();
    void onlyWhatIsThereIsFound();

private:
    QVector<QPointF> points(const QString &name) const;
    QString axis(Qt::Orientation orientation) const;

    std::unique_ptr<GyroChartView> mView;
};

void TestGyroChart::init()
{
    mView = std::make_unique<GyroChartView>();
    mView->resize(500, 155);
}

QVector<QPointF> TestGyroChart::points(const QString &name) const
{
    const QList<QAbstractSeries *> series = mView->chart()->series();
    for (QAbstractSeries *one : series) {
        if (one->name() == name)
            return static_cast<QLineSeries *>(one)->pointsVector();
    }
    qFatal("The chart has no such line");
}

QString TestGyroChart::axis(Qt::Orientation orientation) const
{
    const auto *found = qobject_cast<QValueAxis *>(mView->chart()->axes(orientation).value(0));
    return QStringLiteral("%1 to %2").arg(found->min()).arg(found->max());
}

void TestGyroChart::yRange_data()
{
    QTest::addColumn<QVector<float>>("readings");
    QTest::addColumn<QString>("range");
    QTest::newRow("within") << QVector<float>{1.99f, -1.99f} << "-2 to 2";
    QTest::newRow("on the edge") << QVector<float>{2.0f} << "-4 to 4";
    QTest::newRow("two steps at once") << QVector<float>{-5.3f} << "-6 to 6";
    QTest::newRow("on a later edge") << QVector<float>{4.0f} << "-6 to 6";
    QTest::newRow("never back") << QVector<float>{9.99f, 0.0f, 2.5f} << "-10 to 10";
}

void TestGyroChart::yRange()
{
    QFETCH(QVector<float>, readings);
    QFETCH(QString, range);
    for (float reading : qAsConst(readings))
        mView->insertPoints(all(reading));
    QCOMPARE(axis(Qt::Vertical), range);
    QCOMPARE(points("X ").size(), readings.size());
    QCOMPARE(points("Y ").last(), QPointF(readings.size() - 1, qreal(-readings.last())));

    mView->clearAll();
    QCOMPARE(axis(Qt::Vertical), QString("-2 to 2"));
    mView->insertPoints({0.5f, 0.0f, 0.0f});
    QCOMPARE(points("X "), QVector<QPointF>{QPointF(0, 0.5)});
}

void TestGyroChart::window()
{
    mView->setAxisXRange(100);
    for (int i = 0; i <= WindowSize; ++i)
        mView->insertPoints({0.0f, 0.0f, float(i % 2)});
    QCOMPARE(points("Z ").size(), WindowSize + 1);
    QCOMPARE(axis(Qt::Horizontal), QString("0 to 99"));
    for (int extra = 1; extra <= 3; ++extra) {
        mView->insertPoints({});
        QCOMPARE(points("Z ").size(), WindowSize + 1);
        QCOMPARE(points("Z ").first(), QPointF(extra, extra % 2));
        QCOMPARE(points("X ").last(), QPointF(WindowSize + extra, 0));
        QTRY_COMPARE(axis(Qt::Horizontal),
                     QStringLiteral("%1 to %2").arg(extra).arg(WindowSize + extra));
    }
    mView->clearAll();
    QCOMPARE(axis(Qt::Horizontal), QString("0 to 6000"));
    for (const char *name : {"X ", "Y ", "Z ", "C "})
        QVERIFY(points(name).isEmpty());
}

void TestGyroChart::cursor()
{
    mView->setCurAxis(7);
    QCOMPARE(points("C "), (QVector<QPointF>{{7, -2}, {7, 2}}));
    mView->insertPoints(all(3.0f)); // the cursor grows with its next move
    QCOMPARE(points("C "), (QVector<QPointF>{{7, -2}, {7, 2}}));
    mView->setCurAxis(8);
    QCOMPARE(points("C "), (QVector<QPointF>{{8, -4}, {8, 4}}));
}

/** Inserted one by one with the event loop in between, as the window does, the lines are painted
 *  where the samples are. */
void TestGyroChart::samplesAreSeen()
{
    constexpr int count = 500;
    mView->show();
    QVERIFY(QTest::qWaitForWindowExposed(mView.get(), PatienceMs));
    mView->setAxisXRange(count);
    for (int i = 0; i < count; ++i) {
        mView->insertPoints({1.0f, 0.0f, -1.0f});
        QCoreApplication::processEvents();
    }
    const QRectF plot = mView->chart()->plotArea();
    const auto colourAt = [&](double part, double g) {
        const QPointF at(plot.left() + part * plot.width(),
                         plot.center().y() - g / 4 * plot.height());
        const QImage image = mView->grab().toImage();
        return image.pixelColor((mView->mapFromScene(mView->chart()->mapToScene(at))));
    };
    for (double part : {0.02, 0.5, 0.98}) {
        QTRY_VERIFY(colourAt(part, 1.0).red() > 150 && colourAt(part, 1.0).green() < 100);
        QTRY_VERIFY(colourAt(part, -1.0).blue() > 150 && colourAt(part, -1.0).red() < 100);
    }
}

void TestGyroChart::secondsOfSamples_data()
{
    QTest::addColumn<float>("samplesPerPoint");
    QTest::addColumn<int>("sample");
    QTest::addColumn<int>("second");
    QTest::newRow("a sample a second") << 1.0f << 7 << 7;
    QTest::newRow("the last frame of a second") << 30.0f << 59 << 1;
    QTest::newRow("the first frame of a second") << 30.0f << 60 << 2;
    QTest::newRow("a broken rate, where the chart has second 1") << 29.97f << 29 << 1;
    QTest::newRow("a frame before that") << 29.97f << 28 << 0;
}

void TestGyroChart::secondsOfSamples()
{
    QFETCH(const float, samplesPerPoint);
    QFETCH(const int, sample);
    QTEST(secondOfSample(sample, samplesPerPoint), "second");
}

/** Neither what has gone nor what is beyond the end. */
void TestGyroChart::onlyWhatIsThereIsFound()
{
    mView->show();
    QVERIFY(QTest::qWaitForWindowExposed(mView.get(), PatienceMs));
    QVERIFY(!mView->isOnLines({250, 60}));
    QCOMPARE(mView->sampleNear({250, 60}), -1);
    for (int i = 0; i < WindowSize + 11; ++i)
        mView->insertPoints({});
    QVERIFY(mView->isOnLines({250, 60}));
    QVERIFY(!mView->isOnLines({250, 154}));
    QTRY_COMPARE(mView->sampleNear({-5000, 60}), 10);
    QCOMPARE(mView->sampleNear({5000, 60}), WindowSize + 10);
}

QTEST_MAIN(TestGyroChart)
#include "tst_gyrochart.moc"
