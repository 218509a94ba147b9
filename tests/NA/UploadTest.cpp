#include "NA/CKyNAMultipartForm.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QHttpMultiPart>

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
        EXPECT_FALSE(base.isEmpty()) << qPrintable(readAllStandardError());
    }
    ~UploadPeer() override { closeWriteChannel(), waitForFinished(5000); }
    QUrl url(const char* path) const { return QUrl(base + QLatin1String(path)); }
    QString base;
};

// Runs the reply to its end; what it reported, progress left out, then its
// body as JSON (or the parse error).
QStringList Finish(CKyNANetworkReply* reply, QJsonObject* answer = nullptr)
{
    Recorder log;
    RecordReply(log, reply);
    EXPECT_TRUE(waitFinished(log, 20000));
    QJsonParseError error;
    const QJsonDocument json = reply->readJson(&error);
    if (answer)
        *answer = json.object();
    log.add("json", error.error == QJsonParseError::NoError
                        ? QString::fromUtf8(json.toJson(QJsonDocument::Compact))
                        : QString::number(error.offset) + " " + error.errorString());
    log.add("networkError", reply->networkError());
    delete reply;
    return Outcome(log);
}

QString Field(const QJsonObject& answer, const char* key)
{
    return QString::fromUtf8(
        QJsonDocument(answer.value(QLatin1String(key)).toObject()).toJson(QJsonDocument::Compact));
}

} // namespace

// A JSON body goes with its Content-Type unless the request has one, also
// again after a 307, and the caller's request is left as it was. readJson
// says where a body stops being JSON, and an empty body is no JSON either.
TEST(Upload, JsonGoesWithItsTypeAndAParseErrorSaysWhere)
{
    UploadPeer peer;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest plain(peer.url("/echo")), typed(peer.url("/echo")), moved(peer.url("/307"));
    typed.setRawHeader("Content-Type", "application/vnd.part+json");
    moved.setFollowRedirects(true);
    QJsonObject answer;
    EXPECT_EQ(Finish(manager.post(plain, QJsonObject{{"n", 1}}), &answer).constFirst(), "finished");
    EXPECT_EQ(answer.value("type").toString(), "application/json");
    EXPECT_EQ(Field(answer, "json"), "{\"n\":1}");
    EXPECT_FALSE(plain.rawHeader("Content-Type").isValid());
    Finish(manager.put(typed, QJsonDocument(QJsonObject{{"a", QJsonArray{1, "x"}}})), &answer);
    EXPECT_EQ(answer.value("method").toString() + answer.value("type").toString(),
              "PUTapplication/vnd.part+json");
    EXPECT_EQ(Field(answer, "json"), "{\"a\":[1,\"x\"]}");
    Finish(manager.post(moved, QJsonObject{{"again", true}}), &answer);
    EXPECT_EQ(Field(answer, "json"), "{\"again\":true}");

    CKyNANetworkRequest bad(peer.url("/bad-json"));
    const QStringList badOutcome = Finish(manager.get(bad));
    EXPECT_EQ(badOutcome.value(1).toStdString(), "json:9 object is missing after a comma");
    CKyNANetworkReply* early = manager.get(bad);
    QJsonParseError error;
    EXPECT_TRUE(early->readJson(&error).isNull());
    EXPECT_NE(error.error, QJsonParseError::NoError);
    delete early;
}

// Fields and files arrive whole and in order, under their names, types and
// (quoted) file names; the form may go once the transfer started; progress
// reaches the whole size. A part that cannot be sent refuses to be added,
// or, gone by the time the transfer starts, fails the transfer.
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
    CKyNANetworkRequest request(peer.url("/echo"));
    CKyNANetworkReply* reply = nullptr;
    {
        CKyNAMultipartForm form;
        EXPECT_TRUE(form.addField("title", QString::fromUtf8("bracket, r\xc3\xa9v. C")));
        EXPECT_TRUE(form.addFile("model", modelPath, "model/step"));
        EXPECT_TRUE(form.addFile("odd", oddPath));
        // Refused: no name, a quote, a line break in the type, no file, a directory.
        EXPECT_FALSE(form.addField("", "x") || form.addField("a\"b", "x") ||
                     form.addFile("f", modelPath, "text/plain\r\nX: y") ||
                     form.addFile("f", dir.filePath("none")) || form.addFile("f", dir.path()));
        EXPECT_EQ(form.count(), 3);
        reply = manager.post(request, form);
    }
    long long sent = 0, total = 0;
    int pieces = 0;
    reply->uploadProgress().connect(
        [&](long long s, long long t) { t > 0 ? (sent = s, total = t, ++pieces) : 0; });
    QJsonObject answer;
    Finish(reply, &answer);
    EXPECT_TRUE(answer.value("type").toString().startsWith("multipart/form-data; boundary="));
    EXPECT_EQ(Field(answer, "fields").toStdString(), "{\"title\":\"bracket, r\xc3\xa9v. C\"}");
    const QString files =
        QString::fromUtf8(QJsonDocument(answer.value("files").toArray()).toJson(QJsonDocument::Compact));
    const QString want =
        QStringLiteral("[{\"filename\":\"bracket.step\",\"name\":\"model\",\"sha256\":\"%1\",\"size\":%2,"
                       "\"type\":\"model/step\"},"
                       "{\"filename\":\"a%22b.bin\",\"name\":\"odd\",\"sha256\":\"%3\",\"size\":3,\"type\":"
                       "\"application/octet-stream\"}]")
            .arg(QString(QCryptographicHash::hash(model, QCryptographicHash::Sha256).toHex()))
            .arg(model.size())
            .arg(QString(QCryptographicHash::hash("odd", QCryptographicHash::Sha256).toHex()));
    EXPECT_EQ(files.toStdString(), want.toStdString());
    EXPECT_EQ(sent, total);
    EXPECT_GT(total, model.size());
    EXPECT_GT(pieces, 1);

    // A redirect that wants the upload again is refused; one to a GET is not.
    // A file gone before the start fails the transfer.
    CKyNAMultipartForm form;
    form.addFile("model", modelPath);
    const std::pair<const char*, const char*> rows[] = {
        {"/307", "error:205 finished json:0 illegal value networkError:205"},
        {"/303", "finished json:{\"method\":\"GET\"} networkError:0"},
    };
    for (const auto& row : rows) {
        CKyNANetworkRequest moved(peer.url(row.first));
        moved.setFollowRedirects(true);
        EXPECT_EQ(Finish(manager.post(moved, form)).join(' ').toStdString(), row.second) << row.first;
    }
    QFile::remove(modelPath);
    EXPECT_EQ(Finish(manager.put(request, form)).join(' ').toStdString(),
              "error:5 finished json:0 illegal value networkError:5");
}

// The multipart and its open files go with the reply, also when the reply is
// deleted from a slot while the upload runs.
TEST(Upload, FormGoesWithTheReplyDeletedMidUpload)
{
    UploadPeer peer;
    QTemporaryDir dir;
    QFile file(dir.filePath("big.bin"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(8 << 20, 'x'));
    file.close();
    CKyNAMultipartForm form;
    form.addFile("big", file.fileName());
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request(peer.url("/echo"));
    CKyNANetworkReply* reply = manager.post(request, form);
    const QPointer<QHttpMultiPart> multiPart = reply->getHandle()->findChild<QHttpMultiPart*>();
    ASSERT_TRUE(multiPart);
    CKyNANetworkReply** slot = &reply;
    reply->uploadProgress().connect([slot](long long sent, long long) {
        CKyNANetworkReply** where = slot; // the capture goes with the reply
        if (sent > 0)
            delete *where, *where = nullptr;
    });
    EXPECT_TRUE(waitUntil(
        [&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return !reply && multiPart.isNull();
        },
        20000));
}
