#include "NA/CKyNANetworkRequest.h"
#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include <QtNetwork/QNetworkRequest>

#include <gtest/gtest.h>

namespace
{

const QUrl kUrl(QStringLiteral("http://127.0.0.1:1/path"));

} // namespace

TEST(CKyNANetworkRequest, ConstructorUrlReachesOnlyTheToolkitRequest)
{
    CKyNANetworkRequest request(kUrl);
    EXPECT_TRUE(request.url().isEmpty());
    ASSERT_NE(request.getHandle(), nullptr);
    EXPECT_EQ(request.getHandle()->url(), kUrl);
    EXPECT_EQ(request.requestTimeout(), 0);

    const QUrl other(QStringLiteral("http://127.0.0.1:2/other"));
    request.setUrl(other);
    EXPECT_EQ(request.url(), other);
    EXPECT_EQ(request.getHandle()->url(), other);
}

TEST(CKyNANetworkRequest, KnownHeadersAreStoredAndWrittenThrough)
{
    CKyNANetworkRequest request(kUrl);
    EXPECT_FALSE(request.header(CKyNANetworkRequest::LocationHeader).isValid());

    request.setHeader(CKyNANetworkRequest::LocationHeader, QUrl(QStringLiteral("http://a/")));
    request.setHeader(CKyNANetworkRequest::LocationHeader, QUrl(QStringLiteral("http://b/")));
    EXPECT_EQ(request.header(CKyNANetworkRequest::LocationHeader).toUrl(), QUrl(QStringLiteral("http://b/")));
    EXPECT_EQ(request.getHandle()->header(QNetworkRequest::LocationHeader).toUrl(),
              QUrl(QStringLiteral("http://b/")));

    // The getter answers from the stored value, not from the toolkit request.
    request.getHandle()->setHeader(QNetworkRequest::LocationHeader, QUrl(QStringLiteral("http://c/")));
    EXPECT_EQ(request.header(CKyNANetworkRequest::LocationHeader).toUrl(), QUrl(QStringLiteral("http://b/")));
}

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

TEST(CKyNANetworkRequest, TimeoutIsStoredUncheckedAndNotHandedToTheToolkit)
{
    CKyNANetworkRequest request(kUrl);
    request.setRequestTimeout(-5);
    EXPECT_EQ(request.requestTimeout(), -5);
    request.setRequestTimeout(200);
    EXPECT_EQ(request.requestTimeout(), 200);
}

TEST(CKyNANetworkRequest, CopyCarriesOnlyTheUrlField)
{
    CKyNANetworkRequest original(kUrl);
    original.setRawHeader("X-A", "1");
    original.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
    original.setRequestTimeout(200);

    // Made by the constructor alone: the URL field is empty, and so is the copy's.
    CKyNANetworkRequest unset(original);
    EXPECT_TRUE(unset.url().isEmpty());
    EXPECT_TRUE(unset.getHandle()->url().isEmpty());

    original.setUrl(kUrl);
    CKyNANetworkRequest copy(original);
    // The copy is made like a new request: the URL reaches its toolkit request only.
    EXPECT_TRUE(copy.url().isEmpty());
    EXPECT_EQ(copy.getHandle()->url(), kUrl);
    EXPECT_NE(copy.getHandle(), original.getHandle());
    EXPECT_EQ(copy.requestTimeout(), 0);
    EXPECT_FALSE(copy.rawHeader("X-A").isValid());
    EXPECT_TRUE(copy.rawHeaderList().isEmpty());
    EXPECT_FALSE(copy.header(CKyNANetworkRequest::ContentTypeHeader).isValid());
    EXPECT_TRUE(copy.getHandle()->rawHeaderList().isEmpty());
}

TEST(CKyNANetworkRequest, AssignmentInstallsAFreshRequestFromTheUrlField)
{
    CKyNANetworkRequest target(QUrl(QStringLiteral("http://127.0.0.1:3/old")));
    target.setRawHeader("X-Old", "1");
    QNetworkRequest* previous = target.getHandle();

    CKyNANetworkRequest source(kUrl);
    source.setUrl(kUrl);
    source.setRequestTimeout(50);
    target = source;

    EXPECT_NE(target.getHandle(), previous);
    EXPECT_TRUE(target.url().isEmpty());
    EXPECT_EQ(target.getHandle()->url(), kUrl);
    EXPECT_EQ(target.requestTimeout(), 0);
    EXPECT_FALSE(target.rawHeader("X-Old").isValid());
    // The previous toolkit request was left alone.
    EXPECT_EQ(previous->rawHeader("X-Old"), QByteArray("1"));
}

TEST(CKyNANetworkRequest, KnownHeaderNames)
{
    using R = CKyNANetworkRequest;
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::ContentTypeHeader), QByteArray("Content-Type"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::ContentLengthHeader),
              QByteArray("Content-Length"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::LocationHeader), QByteArray("Location"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::LastModifiedHeader), QByteArray("Last-Modified"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::CookieHeader), QByteArray("Cookie"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::SetCookieHeader), QByteArray("Set-Cookie"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::ContentDispositionHeader),
              QByteArray("Content-Disposition"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::UserAgentHeader), QByteArray("User-Agent"));
    EXPECT_EQ(CKyNANetworkRequestImpl::GetKnowHeaderName(R::ServerHeader), QByteArray("Server"));
    EXPECT_TRUE(CKyNANetworkRequestImpl::GetKnowHeaderName(R::KnownHeaders(9)).isNull());
    EXPECT_TRUE(CKyNANetworkRequestImpl::GetKnowHeaderName(R::KnownHeaders(-1)).isNull());
}
