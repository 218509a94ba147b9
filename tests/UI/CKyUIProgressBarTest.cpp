#include "UI/CKyUIProgressBar.h"
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/HttpTestServer.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QProgressBar>

#include <functional>
#include <memory>

namespace
{
QProgressBar* BarOf(const CKyUIProgressBar& bar)
{
    return qobject_cast<QProgressBar*>(bar.getHandle());
}

// What the bar keeps and what its widget shows, in one line.
QString Shown(const CKyUIProgressBar& bar)
{
    const QProgressBar* widget = BarOf(bar);
    return QString("%1..%2 at %3%4 | %5..%6 at %7 \"%8\"")
        .arg(bar.minimum())
        .arg(bar.maximum())
        .arg(bar.value())
        .arg(bar.isBusy() ? " busy" : "")
        .arg(widget->minimum())
        .arg(widget->maximum())
        .arg(widget->value())
        .arg(widget->text());
}
} // namespace

// Each step and the state it leaves: busy keeps the range to come back to;
// a value out of range is ignored; sizes past an int are scaled together.
TEST(CKyUIProgressBarTest, RangeValueBusyAndProgress)
{
    CKyUIProgressBar bar;
    EXPECT_EQ(Shown(bar), "0..100 at 0 | 0..100 at 0 \"0%\"");
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[&] { bar.setValue(40); }, "0..100 at 40 | 0..100 at 40 \"40%\""},
        {[&] { bar.setValue(140); }, "0..100 at 40 | 0..100 at 40 \"40%\""},
        {[&] { bar.setBusy(true); }, "0..100 at 40 busy | 0..0 at -1 \"\""},
        {[&] { bar.setBusy(false); }, "0..100 at 40 | 0..100 at 40 \"40%\""},
        {[&] { bar.setRange(50, 10); }, "50..50 at 50 | 50..50 at 50 \"100%\""},
        {[&] { bar.setRange(0, 0); }, "0..0 at 0 busy | 0..0 at -1 \"\""},
        {[&] { bar.setProgress(512, 2048); }, "0..2048 at 512 | 0..2048 at 512 \"25%\""},
        {[&] { bar.setProgress(100, -1); }, "0..2048 at 512 busy | 0..0 at -1 \"\""},
    };
    for (const auto& step : steps) {
        step.first();
        EXPECT_EQ(Shown(bar), step.second);
    }
    bar.setProgress(3LL << 32, 4LL << 32);
    EXPECT_EQ(bar.maximum(), 1 << 30);
    EXPECT_EQ(bar.value(), 3 << 28);
    EXPECT_EQ(BarOf(bar)->text(), "75%");
    bar.setFormat("%v of %m");
    bar.reset();
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(bar.format(), "%v of %m");
    bar.setTextVisible(false);
    EXPECT_FALSE(BarOf(bar)->isTextVisible());
}

// The one line of the documentation, with a real download: the bar ends full.
TEST(CKyUIProgressBarTest, FollowsADownloadInOneLine)
{
    HttpTestServer server;
    ASSERT_TRUE(server.isListening());
    server.setRoute("/part", {HttpTestServer::Mode::Answer, {}, QByteArray(300000, 'x')});
    CKyNANetworkAccessManager manager;
    CKyUIProgressBar bar;
    bar.setBusy(true);
    std::unique_ptr<CKyNANetworkReply> reply(manager.get(CKyNANetworkRequest(server.url("/part"))));
    reply->downloadProgress().connect(
        [&bar](long long received, long long total) { bar.setProgress(received, total); });
    bool finished = false;
    reply->finished().connect([&finished]() { finished = true; });
    ASSERT_TRUE(QTest::qWaitFor([&finished] { return finished; }, 10000));
    EXPECT_EQ(Shown(bar), "0..300000 at 300000 | 0..300000 at 300000 \"100%\"");
}
