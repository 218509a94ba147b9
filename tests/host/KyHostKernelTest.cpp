#include "KyHostKernel.h"

#include <gtest/gtest.h>

// Text is kept as given until it is encoded, and then encoded in place.
TEST(KyHostKernelTest, EncodeHtmlReplacesTheFiveSpecialCharactersInPlace)
{
    const QString original = QStringLiteral("<a href=\"x\">Tom & Jerry's</a> äöü");
    CKyString text(original);
    EXPECT_EQ(static_cast<const QString&>(text), original);
    CKyString& same = text.EncodeHTML();
    EXPECT_EQ(&same, &text);
    EXPECT_EQ(static_cast<const QString&>(text),
              QStringLiteral("&lt;a href=&quot;x&quot;&gt;Tom &amp; Jerry&#39;s&lt;/a&gt; äöü"));
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
