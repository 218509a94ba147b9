// fetch URL [--timeout MS] [--method GET|POST|PUT|DELETE] [--data TEXT]
//           [--header 'Name: value']... [--body]
// fetch ws[s]://... [--timeout MS] [--header 'Name: value']... [--messages N]
//           [--for MS] [--ping MS] [--insecure]
//
// Sends one request through CKyNANetworkAccessManager and prints the status
// code, the received headers and the body size (or the body itself). Exits
// with 1 and the error code and text when the transfer fails or times out,
// with 2 on a usage error.

#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "WebSocketMode.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtCore/QUrl>

#include <cstdio>
#include <memory>

namespace
{

int usageError(const QCommandLineParser& parser, const QString& message)
{
    QTextStream err(stderr);
    err << "fetch: " << message << "\n\n" << parser.helpText();
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("fetch"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sends one HTTP request and prints what comes back."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("URL"), QStringLiteral("The address to ask."));
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
                                           QStringLiteral("Abort after MS milliseconds (default 30000)."),
                                           QStringLiteral("MS"));
    const QCommandLineOption methodOption(QStringLiteral("method"),
                                          QStringLiteral("GET, POST, PUT or DELETE."),
                                          QStringLiteral("METHOD"), QStringLiteral("GET"));
    const QCommandLineOption dataOption(QStringLiteral("data"), QStringLiteral("Body sent with POST or PUT."),
                                        QStringLiteral("TEXT"));
    const QCommandLineOption headerOption(QStringLiteral("header"),
                                          QStringLiteral("Request header 'Name: value'; may be repeated."),
                                          QStringLiteral("HEADER"));
    const QCommandLineOption bodyOption(QStringLiteral("body"),
                                        QStringLiteral("Print the body, not its size."));
    parser.addOptions({timeoutOption, methodOption, dataOption, headerOption, bodyOption});
    addWebSocketOptions(parser);
    parser.process(application);

    if (parser.positionalArguments().size() != 1)
        return usageError(parser, QStringLiteral("expected exactly one URL"));
    const QUrl url = QUrl::fromUserInput(parser.positionalArguments().first());
    if (!url.isValid())
        return usageError(parser, QStringLiteral("not a URL: %1").arg(parser.positionalArguments().first()));

    const QString method = parser.value(methodOption).toUpper();
    if (method != QLatin1String("GET") && method != QLatin1String("POST") && method != QLatin1String("PUT") &&
        method != QLatin1String("DELETE"))
        return usageError(parser, QStringLiteral("unknown method: %1").arg(method));

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
        request.setRawHeader(header.left(colon).trimmed().toUtf8(), header.mid(colon + 1).trimmed().toUtf8());
    }
    if (isWebSocketUrl(url))
        return runWebSocket(parser, request, request.requestTimeout() > 0 ? request.requestTimeout() : 30000);
    const QByteArray data = parser.value(dataOption).toUtf8();
    if (parser.isSet(dataOption) && !request.rawHeader("Content-Type").isValid())
        request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain; charset=utf-8"));

    // The reply must go before its manager: declared after it, deleted first.
    CKyNANetworkAccessManager manager;
    std::unique_ptr<CKyNANetworkReply> reply;
    if (method == QLatin1String("GET"))
        reply.reset(manager.get(request));
    else if (method == QLatin1String("POST"))
        reply.reset(manager.post(request, data));
    else if (method == QLatin1String("PUT"))
        reply.reset(manager.put(request, data));
    else
        reply.reset(manager.deleteResource(request));
    if (!reply)
        return 1;

    QEventLoop loop;
    reply->finished().connect([&loop] { loop.quit(); });
    if (!reply->isFinished())
        loop.exec();

    // Without a status nothing came back (refused, timed out, ...): only the
    // error is worth printing.
    const QVariant status = reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid()) {
        QTextStream out(stdout);
        out << "status: " << status.toInt() << '\n';
        for (const auto& pair : reply->rawHeaderPairs())
            out << pair.first << ": " << pair.second << '\n';
        const QByteArray body = reply->bytesAvailable() > 0 ? reply->readAll() : QByteArray();
        if (parser.isSet(bodyOption)) {
            out << '\n';
            out.flush();
            std::fwrite(body.constData(), 1, size_t(body.size()), stdout);
            std::fflush(stdout);
        } else {
            out << "body: " << body.size() << " bytes\n";
        }
    }

    const CKyNANetworkReply::NetworkError code = static_cast<const CKyNANetworkReply&>(*reply).error();
    if (code != CKyNANetworkReply::NoError) {
        QTextStream err(stderr);
        err << "fetch: error " << int(code) << ": " << reply->errorString() << '\n';
        return 1;
    }
    return 0;
}
