// fetch URL [--timeout MS] [--method VERB] [--head] [--data TEXT]
//           [--json TEXT|@FILE] [--form NAME=VALUE|NAME=@FILE]...
//           [--header 'Name: value']... [--body] [--output FILE]
//           [--cacert FILE] [--insecure] [--location]
//           [--proxy URL] [--user NAME:PASSWORD] [--bearer TOKEN] [--retry N]
// fetch ws[s]://... [--timeout MS] [--header 'Name: value']... [--messages N]
//           [--for MS] [--ping MS] [--send TEXT]... [--insecure] [--cacert FILE]
//
// Sends one request through CKyNANetworkAccessManager and prints the status
// code, the received headers and the body size (or the body itself, or
// streams it into a file with a progress bar on a terminal). --json and
// --form send a JSON body or a multipart form (files streamed from disk, with
// a progress bar on a terminal), by POST unless --method PUT.
//
// Exit codes, each failure with one line on stderr:
//   0  the transfer succeeded (a web socket: it ended with a normal closure)
//   1  the transfer failed or timed out (the error code and text); a web
//      socket failed to open, saw an error, missed a pong or ended with any
//      other close code. Among them: the proxy refused its credentials or
//      wanted some (error 105), the server refused --user (error 204, after
//      one more try at most), the last of the --retry tries failed
//   2  usage: an unknown option, a missing or malformed argument, a --cacert
//      file without certificates, a --proxy that is no http:// or socks5://
//      URL (nor "system" or "none"), a --user without ':', a --bearer token
//      the header check refuses, a --retry that is no whole number from 0,
//      --json that is no JSON, a --json or --form file that cannot be read,
//      more than one of --data, --json and --form, --json or --form with a
//      method other than POST and PUT (the help follows the message)
//   3  --output could not be opened or written; the transfer is abandoned

#include "NA/CKyNAMultipartForm.h"
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "WebSocketMode.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QTextStream>
#include <QtCore/QUrl>

#include <cstdio>
#include <memory>

#include <unistd.h>

namespace
{

int usageError(const QCommandLineParser& parser, const QString& message)
{
    QTextStream err(stderr);
    err << "fetch: " << message << "\n\n" << parser.helpText();
    return 2;
}

int outputError(const QFile& output)
{
    QTextStream(stderr) << "fetch: cannot write " << output.fileName() << ": " << output.errorString()
                        << '\n';
    return 3;
}

// One line on stderr, redrawn in place: a bar when the size is known.
void drawProgress(long long received, long long total)
{
    QTextStream err(stderr);
    if (total > 0) {
        const int width = 40;
        const int done = int(received * width / total);
        err << "\r[" << QString(done, QLatin1Char('#')) << QString(width - done, QLatin1Char(' ')) << "] "
            << received * 100 / total << "% " << received / 1024 << "/" << total / 1024 << " KiB";
    } else {
        err << "\r" << received / 1024 << " KiB";
    }
}

// --json's document, and --form's fields and files; a usage error's
// message when they cannot be had.
QString readBody(const QCommandLineParser& parser, QJsonDocument& json, CKyNAMultipartForm& form)
{
    const bool hasJson = parser.isSet(QStringLiteral("json"));
    const bool hasForm = parser.isSet(QStringLiteral("form"));
    if (int(parser.isSet(QStringLiteral("data"))) + int(hasJson) + int(hasForm) > 1)
        return QStringLiteral("give only one of --data, --json and --form");
    if (hasJson) {
        const QString value = parser.value(QStringLiteral("json"));
        QByteArray text = value.toUtf8();
        if (value.startsWith(QLatin1Char('@'))) {
            QFile file(value.mid(1));
            if (!file.open(QIODevice::ReadOnly))
                return QStringLiteral("cannot read %1: %2").arg(file.fileName(), file.errorString());
            text = file.readAll();
        }
        QJsonParseError error;
        json = QJsonDocument::fromJson(text, &error);
        if (error.error != QJsonParseError::NoError)
            return QStringLiteral("--json: not JSON at offset %1: %2")
                .arg(error.offset)
                .arg(error.errorString());
    }
    for (const QString& field : parser.values(QStringLiteral("form"))) {
        const int equals = field.indexOf(QLatin1Char('='));
        const QString name = field.left(equals);
        const QString value = field.mid(equals + 1);
        if (equals <= 0)
            return QStringLiteral("a form field reads NAME=VALUE or NAME=@FILE: %1").arg(field);
        if (value.startsWith(QLatin1Char('@')) ? !form.addFile(name, value.mid(1))
                                               : !form.addField(name, value))
            return QStringLiteral("--form: cannot add %1").arg(field);
    }
    return QString();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("fetch"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sends one HTTP request and prints what comes back."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("URL"), QStringLiteral("The address to ask."));
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
                                           QStringLiteral("Abort after MS milliseconds (default 30000)."),
                                           QStringLiteral("MS"));
    const QCommandLineOption methodOption(
        QStringLiteral("method"),
        QStringLiteral("GET, POST, PUT, DELETE, HEAD or any other verb (PATCH, ...)."),
        QStringLiteral("METHOD"), QStringLiteral("GET"));
    const QCommandLineOption headOption(QStringLiteral("head"), QStringLiteral("Send a HEAD request."));
    const QCommandLineOption dataOption(QStringLiteral("data"), QStringLiteral("Body sent with POST or PUT."),
                                        QStringLiteral("TEXT"));
    const QCommandLineOption headerOption(QStringLiteral("header"),
                                          QStringLiteral("Request header 'Name: value'; may be repeated."),
                                          QStringLiteral("HEADER"));
    const QCommandLineOption bodyOption(QStringLiteral("body"),
                                        QStringLiteral("Print the body, not its size."));
    const QCommandLineOption outputOption(QStringLiteral("output"),
                                          QStringLiteral("Stream the body into FILE as it arrives."),
                                          QStringLiteral("FILE"));
    const QCommandLineOption cacertOption(QStringLiteral("cacert"),
                                          QStringLiteral("Also trust the authorities in this PEM file."),
                                          QStringLiteral("FILE"));
    const QCommandLineOption insecureOption(QStringLiteral("insecure"),
                                            QStringLiteral("Accept any server certificate."));
    const QCommandLineOption locationOption(QStringLiteral("location"),
                                            QStringLiteral("Follow redirects (never from https to http)."));
    const QCommandLineOption proxyOption(
        QStringLiteral("proxy"),
        QStringLiteral("Go through http://[user:password@]host:port or socks5://..., "
                       "or 'system' (http_proxy, ...) or 'none'."),
        QStringLiteral("URL"));
    const QCommandLineOption userOption(
        QStringLiteral("user"), QStringLiteral("Sign in with these when the server asks (basic, digest)."),
        QStringLiteral("NAME:PASSWORD"));
    const QCommandLineOption bearerOption(QStringLiteral("bearer"),
                                          QStringLiteral("Send 'Authorization: Bearer TOKEN'."),
                                          QStringLiteral("TOKEN"));
    const QCommandLineOption retryOption(
        QStringLiteral("retry"),
        QStringLiteral("Retry a GET, HEAD, PUT, DELETE or OPTIONS up to N times after a failed connection "
                       "or a 502, 503 or 504, within the time-out."),
        QStringLiteral("N"));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Send TEXT, or the contents of @FILE, as JSON."),
                                        QStringLiteral("TEXT"));
    const QCommandLineOption formOption(
        QStringLiteral("form"),
        QStringLiteral("Send a multipart form: field NAME=VALUE or file NAME=@FILE; may be repeated."),
        QStringLiteral("FIELD"));
    parser.addOptions({timeoutOption, methodOption, headOption, dataOption, jsonOption, formOption,
                       headerOption, bodyOption, outputOption, cacertOption, insecureOption, locationOption,
                       proxyOption, userOption, bearerOption, retryOption});
    addWebSocketOptions(parser);
    // Not process(): it ends the program with 1 on a usage error.
    if (!parser.parse(QCoreApplication::arguments()))
        return usageError(parser, parser.errorText());
    if (parser.isSet(helpOption))
        parser.showHelp();

    if (parser.positionalArguments().size() != 1)
        return usageError(parser, QStringLiteral("expected exactly one URL"));
    const QUrl url = QUrl::fromUserInput(parser.positionalArguments().first());
    if (!url.isValid())
        return usageError(parser, QStringLiteral("not a URL: %1").arg(parser.positionalArguments().first()));

    const bool upload = parser.isSet(jsonOption) || parser.isSet(formOption);
    const QString method = parser.isSet(headOption)                ? QStringLiteral("HEAD")
                           : upload && !parser.isSet(methodOption) ? QStringLiteral("POST")
                                                                   : parser.value(methodOption).toUpper();
    if (method.isEmpty() || method.contains(QLatin1Char(' ')))
        return usageError(parser, QStringLiteral("not a method: '%1'").arg(method));
    if (upload && method != QLatin1String("POST") && method != QLatin1String("PUT"))
        return usageError(parser, QStringLiteral("--json and --form go with POST or PUT"));
    QJsonDocument json;
    CKyNAMultipartForm form;
    const QString bodyError = readBody(parser, json, form);
    if (!bodyError.isEmpty())
        return usageError(parser, bodyError);

    CKyNANetworkRequest request(url);
    if (parser.isSet(timeoutOption)) {
        bool ok = false;
        const int timeout = parser.value(timeoutOption).toInt(&ok);
        if (!ok || timeout <= 0)
            return usageError(parser, QStringLiteral("the time-out is a positive number of milliseconds"));
        request.setRequestTimeout(timeout);
    }
    for (const QString& header : parser.values(headerOption)) {
        const int colon = header.indexOf(QLatin1Char(':'));
        if (colon <= 0)
            return usageError(parser, QStringLiteral("a header reads 'Name: value': %1").arg(header));
        const QByteArray name = header.left(colon).trimmed().toUtf8();
        const QByteArray value = header.mid(colon + 1).trimmed().toUtf8();
        // The library refuses a header that could split the request and says why.
        request.setRawHeader(name, value);
        if (request.rawHeader(name) != QVariant(value))
            return usageError(parser, QStringLiteral("refused header: a name is a token, and neither name "
                                                     "nor value may hold CR, LF or NUL"));
    }
    if (parser.isSet(cacertOption)) {
        const QList<QSslCertificate> authorities = QSslCertificate::fromPath(parser.value(cacertOption));
        if (authorities.isEmpty())
            return usageError(parser,
                              QStringLiteral("no PEM certificate in %1").arg(parser.value(cacertOption)));
        request.setCaCertificates(authorities);
    }
    if (parser.isSet(userOption)) {
        const QString user = parser.value(userOption);
        if (!user.contains(QLatin1Char(':')))
            return usageError(parser, QStringLiteral("--user reads NAME:PASSWORD"));
        request.setCredentials(user.section(QLatin1Char(':'), 0, 0), user.section(QLatin1Char(':'), 1));
    }
    if (parser.isSet(bearerOption)) {
        request.setBearerToken(parser.value(bearerOption).toUtf8());
        if (!request.rawHeader("Authorization").isValid())
            return usageError(parser, QStringLiteral("refused --bearer: it may not hold CR, LF or NUL"));
    }
    if (parser.isSet(retryOption)) {
        bool ok = false;
        const int retries = parser.value(retryOption).toInt(&ok);
        if (!ok || retries < 0)
            return usageError(parser, QStringLiteral("--retry takes a whole number from 0"));
        request.setRetryPolicy(retries + 1);
    }
    const CKyNAProxy proxy = CKyNAProxy::fromUrl(parser.value(proxyOption));
    if (parser.isSet(proxyOption) && !proxy.isValid())
        return usageError(parser, QStringLiteral("not a proxy: %1").arg(parser.value(proxyOption)));
    // A web socket goes as the application's setting says; see the manual.
    if (isWebSocketUrl(url) && (parser.isSet(proxyOption) || parser.isSet(retryOption)))
        return usageError(parser, QStringLiteral("--proxy and --retry apply to HTTP only"));
    if (isWebSocketUrl(url))
        return runWebSocket(parser, request, request.requestTimeout() > 0 ? request.requestTimeout() : 30000);
    request.setFollowRedirects(parser.isSet(locationOption));
    std::unique_ptr<QFile> output;
    if (parser.isSet(outputOption)) {
        output.reset(new QFile(parser.value(outputOption)));
        // Unbuffered, so that a failing write shows at once.
        if (!output->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return outputError(*output);
        request.setStreaming(true);
    }
    const QByteArray data = parser.value(dataOption).toUtf8();
    if (parser.isSet(dataOption) && !request.rawHeader("Content-Type").isValid())
        request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain; charset=utf-8"));

    // The reply must go before its manager: declared after it, deleted first.
    CKyNANetworkAccessManager manager;
    if (parser.isSet(proxyOption))
        manager.setProxy(proxy);
    std::unique_ptr<CKyNANetworkReply> reply;
    const bool put = method == QLatin1String("PUT");
    if (parser.isSet(jsonOption))
        reply.reset(put ? manager.put(request, json) : manager.post(request, json));
    else if (parser.isSet(formOption))
        reply.reset(put ? manager.put(request, form) : manager.post(request, form));
    else if (method == QLatin1String("GET"))
        reply.reset(manager.get(request));
    else if (method == QLatin1String("POST"))
        reply.reset(manager.post(request, data));
    else if (method == QLatin1String("PUT"))
        reply.reset(manager.put(request, data));
    else if (method == QLatin1String("DELETE"))
        reply.reset(manager.deleteResource(request));
    else if (method == QLatin1String("HEAD"))
        reply.reset(manager.head(request));
    else
        reply.reset(manager.sendCustomRequest(request, method.toUtf8(), data));
    if (!reply)
        return 1;

    const bool insecure = parser.isSet(insecureOption);
    CKyNANetworkReply* started = reply.get();
    started->sslErrors().connect([started, insecure](const QList<QSslError>& errors) {
        QTextStream err(stderr);
        for (const QSslError& error : errors)
            err << "fetch: " << (insecure ? "ignored: " : "") << error.errorString() << '\n';
        if (insecure)
            started->ignoreSslErrors();
    });
    long long written = 0;
    bool writeFailed = false;
    bool progressShown = false;
    // A piece that does not reach the file ends the transfer: nothing is
    // lost without notice.
    const auto store = [&](const QByteArray& piece) {
        if (writeFailed || piece.isEmpty())
            return;
        if (output->write(piece) == piece.size()) {
            written += piece.size();
            return;
        }
        writeFailed = true;
        started->abort();
    };
    if (parser.isSet(formOption) && ::isatty(STDERR_FILENO)) {
        started->uploadProgress().connect([&progressShown](long long sent, long long total) {
            // The toolkit ends with (0, 0).
            if (total <= 0)
                return;
            progressShown = true;
            drawProgress(sent, total);
        });
    }
    if (output) {
        // Taken in pieces as it arrives, so a large body never sits in memory.
        started->readyRead().connect([started, &store, &writeFailed] {
            for (QByteArray chunk = started->read(1 << 16); !chunk.isEmpty() && !writeFailed;
                 chunk = started->read(1 << 16))
                store(chunk);
        });
        if (::isatty(STDERR_FILENO)) {
            started->downloadProgress().connect([&progressShown](long long received, long long total) {
                progressShown = true;
                drawProgress(received, total);
            });
        }
    }

    QEventLoop loop;
    reply->finished().connect([&loop] { loop.quit(); });
    if (!reply->isFinished())
        loop.exec();
    if (progressShown)
        QTextStream(stderr) << '\n';
    if (writeFailed)
        return outputError(*output);

    // Without a status nothing came back (refused, timed out, ...): only the
    // error is worth printing.
    const QVariant status = reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid()) {
        QTextStream out(stdout);
        out << "status: " << status.toInt() << '\n';
        if (parser.isSet(locationOption))
            out << "url: " << reply->url().toString() << '\n';
        for (const auto& pair : reply->rawHeaderPairs())
            out << pair.first << ": " << pair.second << '\n';
        const QByteArray body = reply->bytesAvailable() > 0 ? reply->readAll() : QByteArray();
        if (output) {
            store(body);
            if (writeFailed)
                return outputError(*output);
            out << "body: " << written << " bytes written to " << output->fileName() << '\n';
        } else if (parser.isSet(bodyOption)) {
            out << '\n';
            out.flush();
            std::fwrite(body.constData(), 1, size_t(body.size()), stdout);
            std::fflush(stdout);
        } else {
            out << "body: " << body.size() << " bytes\n";
        }
    }

    const CKyNANetworkReply::NetworkError code = reply->networkError();
    if (code != CKyNANetworkReply::NoError) {
        QTextStream err(stderr);
        err << "fetch: error " << int(code) << ": " << reply->errorString() << '\n';
        return 1;
    }
    return 0;
}
