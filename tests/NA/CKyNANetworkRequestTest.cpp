#include "NA/CKyNANetworkRequest.h"
#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNAWebSocketProtocol.h"

#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>
#include <QtWebSockets/QWebSocketProtocol>

#include <gtest/gtest.h>

namespace
{

const QUrl kUrl(QStringLiteral("http://127.0.0.1:1/path"));

} // namespace

TEST(CKyNANetworkRequest, RawHeadersMatchCaseSensitivelyAndListInByteOrder)
{
    CKyNANetworkRequest request(kUrl);
    request.setRawHeader("x-a", "lower");
    EXPECT_FALSE(request.rawHeader("X-A").isValid());

    request.setRawHeader("X-A", "1");
    const QVariant value = request.rawHeader("X-A");
    ASSERT_TRUE(value.isValid());
    EXPECT_EQ(value.type(), QVariant::ByteArray);
    EXPECT_EQ(value.toByteArray(), QByteArray("1"));
    EXPECT_EQ(request.rawHeader("x-a").toByteArray(), QByteArray("lower"));
    EXPECT_EQ(request.getHandle()->rawHeader("X-A"), QByteArray("1"));

    CKyNANetworkRequest ordered(kUrl);
    ordered.setRawHeader("beta", "b");
    ordered.setRawHeader("alpha", "a");
    ordered.setRawHeader("Gamma", "g");
    EXPECT_EQ(ordered.rawHeaderList(), (QList<QByteArray>{"Gamma", "alpha", "beta"}));
}

// The leak checkers pass over the toolkit requests on purpose (assignment
// leaves one behind), so the request's own one is watched through a value it
// shares: the value is alone again once the toolkit request is gone.
TEST(CKyNANetworkRequest, DestructionFreesTheToolkitRequest)
{
    QByteArray value("watched");
    {
        CKyNANetworkRequest request(kUrl);
        request.getHandle()->setRawHeader("X-Watched", value);
        EXPECT_FALSE(value.isDetached());
    }
    EXPECT_TRUE(value.isDetached());
}

// A request made, copied or assigned passes its URL to the toolkit request
// only; headers and time-out stay behind.
TEST(CKyNANetworkRequest, ConstructionCopyAndAssignmentCarryOnlyTheUrl)
{
    CKyNANetworkRequest original(kUrl);
    EXPECT_TRUE(original.url().isEmpty());
    EXPECT_EQ(original.getHandle()->url(), kUrl);
    EXPECT_EQ(original.requestTimeout(), 0);
    original.setRawHeader("X-A", "1");
    original.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
    original.setRequestTimeout(200);

    // Made by the constructor alone: the URL field is empty, and so is the copy's.
    CKyNANetworkRequest unset(original);
    EXPECT_TRUE(unset.url().isEmpty());
    EXPECT_TRUE(unset.getHandle()->url().isEmpty());

    original.setUrl(kUrl);
    EXPECT_EQ(original.url(), kUrl);
    CKyNANetworkRequest copy(original);
    EXPECT_TRUE(copy.url().isEmpty());
    EXPECT_EQ(copy.getHandle()->url(), kUrl);
    EXPECT_NE(copy.getHandle(), original.getHandle());
    EXPECT_EQ(copy.requestTimeout(), 0);
    EXPECT_FALSE(copy.rawHeader("X-A").isValid());
    EXPECT_TRUE(copy.rawHeaderList().isEmpty());
    EXPECT_FALSE(copy.header(CKyNANetworkRequest::ContentTypeHeader).isValid());
    EXPECT_TRUE(copy.getHandle()->rawHeaderList().isEmpty());

    CKyNANetworkRequest target(QUrl(QStringLiteral("http://127.0.0.1:3/old")));
    target.setRawHeader("X-Old", "1");
    target.setRequestTimeout(50);
    QNetworkRequest* previous = target.getHandle();
    const QUrl other(QStringLiteral("http://127.0.0.1:2/other"));
    original.setUrl(other);
    EXPECT_EQ(original.getHandle()->url(), other);
    target = original;
    EXPECT_NE(target.getHandle(), previous);
    EXPECT_TRUE(target.url().isEmpty());
    EXPECT_EQ(target.getHandle()->url(), other);
    EXPECT_EQ(target.requestTimeout(), 0);
    EXPECT_FALSE(target.rawHeader("X-Old").isValid());
    // The previous toolkit request was left alone.
    EXPECT_EQ(previous->rawHeader("X-Old"), QByteArray("1"));
}

// Each known header is stored, written through under its name, and answered
// from the stored value; numbers that name no header have no name.
TEST(CKyNANetworkRequest, KnownHeadersByName)
{
    using R = CKyNANetworkRequest;
    const std::pair<R::KnownHeaders, const char*> rows[] = {
        {R::ContentTypeHeader, "Content-Type"},
        {R::ContentLengthHeader, "Content-Length"},
        {R::LocationHeader, "Location"},
        {R::LastModifiedHeader, "Last-Modified"},
        {R::CookieHeader, "Cookie"},
        {R::SetCookieHeader, "Set-Cookie"},
        {R::ContentDispositionHeader, "Content-Disposition"},
        {R::UserAgentHeader, "User-Agent"},
        {R::ServerHeader, "Server"},
        {R::KnownHeaders(9), nullptr},
        {R::KnownHeaders(-1), nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(row.first), QByteArray(row.second));
        EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(row.first).isNull(), row.second == nullptr);
    }

    CKyNANetworkRequest request(kUrl);
    EXPECT_FALSE(request.header(R::LocationHeader).isValid());
    request.setHeader(R::LocationHeader, QUrl(QStringLiteral("http://a/")));
    request.setHeader(R::LocationHeader, QUrl(QStringLiteral("http://b/")));
    EXPECT_EQ(request.getHandle()->header(QNetworkRequest::LocationHeader).toUrl(),
              QUrl(QStringLiteral("http://b/")));
    request.getHandle()->setHeader(QNetworkRequest::LocationHeader, QUrl(QStringLiteral("http://c/")));
    EXPECT_EQ(request.header(R::LocationHeader).toUrl(), QUrl(QStringLiteral("http://b/")));
}

// The enumerations carry the toolkit's numbers and pass them through; the
// attributes that Qt 6 renumbered keep Qt 5's.
TEST(NetworkEnumerations, CarryTheToolkitsNumbers)
{
    using R = CKyNANetworkRequest;
    using E = CKyNANetworkReply;
    using W = CKyNAWebSocketProtocol::Version;
    using C = CKyNAWebSocketProtocol::CloseCode;
    const std::pair<int, int> rows[] = {
        {R::ContentTypeHeader, QNetworkRequest::ContentTypeHeader},
        {R::ServerHeader, QNetworkRequest::ServerHeader},
        {R::HttpStatusCodeAttribute, QNetworkRequest::HttpStatusCodeAttribute},
        {R::HTTP2AllowedAttribute, 22},
        {R::RedirectPolicyAttribute, 25},
        {R::User, QNetworkRequest::User},
        {R::UserMax, QNetworkRequest::UserMax},
        {E::OperationCanceledError, QNetworkReply::OperationCanceledError},
        {E::InsecureRedirectError, QNetworkReply::InsecureRedirectError},
        {E::UnknownNetworkError, QNetworkReply::UnknownNetworkError},
        {E::UnknownProxyError, QNetworkReply::UnknownProxyError},
        {E::ContentNotFoundError, QNetworkReply::ContentNotFoundError},
        {E::ProtocolUnknownError, QNetworkReply::ProtocolUnknownError},
        {E::UnknownServerError, QNetworkReply::UnknownServerError},
        {W::VersionUnknown, QWebSocketProtocol::VersionUnknown},
        {W::VersionLatest, QWebSocketProtocol::VersionLatest},
        {C::CloseCodeNormal, QWebSocketProtocol::CloseCodeNormal},
        {C::CloseCodeTlsHandshakeFailed, QWebSocketProtocol::CloseCodeTlsHandshakeFailed},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.first, row.second);
}
