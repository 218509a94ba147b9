#include "KyHostKernel.h"

#include <gtest/gtest.h>

TEST(KyHostKernelTest, EncodeHtmlReplacesTheFiveSpecialCharactersInPlace)
{
    CKyString text(QStringLiteral("<a href=\"x\">Tom & Jerry's</a>"));
    CKyString& same = text.EncodeHTML();
    EXPECT_EQ(&same, &text);
    EXPECT_EQ(static_cast<const QString&>(text),
              QStringLiteral("&lt;a href=&quot;x&quot;&gt;Tom &amp; Jerry&#39;s&lt;/a&gt;"));
}

TEST(KyHostKernelTest, TextRoundTripsUnchangedWithoutEncoding)
{
    const QString original = QStringLiteral("äöü <b> & \"'");
    const CKyString text(original);
    EXPECT_EQ(static_cast<const QString&>(text), original);
}

TEST(KyHostKernelTest, ActiveDocumentIsOneAndNeverNull)
{
    CKyDocument* document = ACTIVE_DOCUMENT();
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(ACTIVE_DOCUMENT(), document);

    CKyDocumentHost host;
    document->host = &host;
    document->host->SetModalDialogRunning(true);
    document->host = nullptr;
}
