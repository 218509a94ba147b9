#include "NA/CKyNAMultipartForm.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QHttpMultiPart>

#include <functional>

namespace
{

// upload_peer.py: answers each POST or PUT with what it parsed out of it.
struct UploadPeer : QProcess
{
    UploadPeer()
    {
        start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_TESTS_DIR "/NA/upload_peer.py")});
        waitUntil([this] { return canReadLine() || state() == NotRunning; }, 20000);
        base = QString::fromUtf8(readLine()).trimmed();
    }
    ~UploadPeer() override { closeWriteChannel(), waitForFinished(5000); }
    CKyNANetworkRequest& request(const char* path, bool follow = false)
    {
        requests.emplace_back(new CKyNANetworkRequest(QUrl(base + QLatin1String(path))));
        requests.back()->setFollowRedirects(follow);
        return *requests.back();
    }
    QString base;
    std::vector<std::unique_ptr<CKyNANetworkRequest>> requests;
};

// Runs the reply to its end: what it reported (progress left out), its body
// read as JSON or where that failed, and networkError().
std::string Finish(CKyNANetworkReply* reply)
{
    Recorder log;
    RecordReply(log, reply);
    EXPECT_TRUE(waitFinished(log, 20000));
    QJsonParseError error;
    const QJsonDocument json = reply->readJson(&error);
    log.add("json", error.error ? QStringLiteral("%1 %2").arg(error.offset).arg(error.errorString())
                                : QString::fromUtf8(json.toJson(QJsonDocument::Compact)));
    log.add("networkError", reply->networkError());
    delete reply;
    return Outcome(log).join(' ').toStdString();
}

} // namespace

// A JSON body goes with its Content-Type unless the request has one, also
// again after a 307, and the caller's request is left as it was. readJson
// says where a body stops being JSON.
TEST(Upload, JsonGoesWithItsTypeAndAParseErrorSaysWhere)
{
    UploadPeer peer;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest& typed = peer.request("/echo");
    typed.setRawHeader("Content-Type", "application/vnd.part+json");
    // Each transfer starts when its row runs, so that none ends unwatched.
    const std::pair<std::function<CKyNANetworkReply*()>, const char*> rows[] = {
        {[&] {
             return manager.post(peer.request("/echo"), QJsonObject{{"n", 1}});
         },
         "POST\",\"type\":\"application/json\"}"},
        {[&] {
             return manager.put(typed, QJsonDocument(QJsonObject{{"n", 1}}));
         },
         "PUT\",\"type\":\"application/vnd.part+json\"}"},
        {[&] {
             return manager.post(peer.request("/307", true), QJsonObject{{"n", 1}});
         },
         "POST\",\"type\":\"application/json\"}"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Finish(row.first()), std::string("finished json:{\"json\":{\"n\":1},\"method\":\"") +
                                           row.second + " networkError:0");
    EXPECT_FALSE(peer.requests[1]->rawHeader("Content-Type").isValid());
    EXPECT_EQ(Finish(manager.get(peer.request("/bad-json"))),
              "finished json:9 object is missing after a comma networkError:0");
}

// Fields and files arrive whole and in order, under their names, types and
// quoted file names; the form may go once the transfer started; progress
// reaches the whole size. A part that cannot be sent is not added, or, gone
// by the time the transfer starts, fails it. The multipart and its files go
// with the reply, also one deleted while the upload runs.
TEST(Upload, FormSendsFieldsAndFilesStreamedFromDisk)
{
    UploadPeer peer;
    QTemporaryDir dir;
    const QByteArray model = QCryptographicHash::hash("seed", QCryptographicHash::Sha512).repeated(50000);
    const QString modelPath = dir.filePath("bracket.step"), oddPath = dir.filePath("a\"b.bin");
    for (const QString& path : {modelPath, oddPath}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(path == modelPath ? model : QByteArray("odd"));
    }
    CKyNANetworkAccessManager manager;
    CKyNANetworkReply* reply = nullptr;
    {
        CKyNAMultipartForm form;
        EXPECT_TRUE(form.addField("title", QString::fromUtf8("r\xc3\xa9v. C")));
        EXPECT_TRUE(form.addFile("model", modelPath, "model/step"));
        EXPECT_TRUE(form.addFile("odd", oddPath));
        // Refused: no name, a quote, a line break in the type, no file, a directory.
        EXPECT_FALSE(form.addField("", "x") || form.addField("a\"b", "x") ||
                     form.addFile("f", modelPath, "text/plain\r\nX: y") ||
                     form.addFile("f", dir.filePath("none")) || form.addFile("f", dir.path()));
        EXPECT_EQ(form.count(), 3);
        reply = manager.post(peer.request("/echo"), form);
    }
    long long sent = 0, total = 0;
    reply->uploadProgress().connect(
        [&](long long s, long long t) { t > 0 ? void((sent = s, total = t)) : void(); });
    const auto hash = [](const QByteArray& bytes) {
        return QString(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    };
    EXPECT_EQ(
        Finish(reply),
        QString::fromUtf8("finished json:{\"fields\":{\"title\":\"r\xc3\xa9v. C\"},\"files\":["
                          "{\"filename\":\"bracket.step\",\"name\":\"model\",\"sha256\":\"%1\",\"size\":%2,"
                          "\"type\":\"model/step\"},{\"filename\":\"a%22b.bin\",\"name\":\"odd\",\"sha256\":"
                          "\"%3\",\"size\":3,\"type\":\"application/octet-stream\"}],\"method\":\"POST\","
                          "\"type\":\"multipart/form-data\"} networkError:0")
            .arg(hash(model))
            .arg(model.size())
            .arg(hash("odd"))
            .toStdString());
    EXPECT_EQ(sent, total);
    EXPECT_GT(total, model.size());

    // A redirect that wants the upload again is refused; one to a GET is not.
    CKyNAMultipartForm form;
    form.addFile("model", modelPath);
    EXPECT_EQ(Finish(manager.post(peer.request("/307", true), form)),
              "error:205 finished json:0 illegal value networkError:205");
    EXPECT_EQ(Finish(manager.post(peer.request("/303", true), form)),
              "finished json:{\"method\":\"GET\"} networkError:0");

    reply = manager.put(peer.request("/echo"), form);
    const QPointer<QHttpMultiPart> multiPart = reply->getHandle()->findChild<QHttpMultiPart*>();
    CKyNANetworkReply** slot = &reply;
    reply->uploadProgress().connect([slot](long long bytes, long long) {
        CKyNANetworkReply** where = slot; // the capture goes with the reply
        if (bytes > 0)
            delete *where, *where = nullptr;
    });
    EXPECT_TRUE(multiPart && waitUntil([&] {
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    return !reply && multiPart.isNull();
                }));
    QFile::remove(modelPath);
    EXPECT_EQ(Finish(manager.put(peer.request("/echo"), form)),
              "error:5 finished json:0 illegal value networkError:5");
}
