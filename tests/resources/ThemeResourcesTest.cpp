#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QResource>

// The theme resources as the library carries them. main() registers nothing:
// whatever is found here was registered by the library's own static
// initialiser. How the icons look is seen in the gallery pictures.

namespace
{
const QString kSheet = QStringLiteral(":/commonui/resources/qss/style.qss");
const QString kPalette = QStringLiteral(":/commonui/resources/qss/style.colors");

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool IsCompressed(const QResource& resource)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    return resource.compressionAlgorithm() != QResource::NoCompression;
#else
    return resource.isCompressed();
#endif
}
} // namespace

// Only the sheet is compressed; every icon is there, stored as it is.
TEST(ThemeResourcesTest, AllRegisteredAndOnlyTheSheetCompressed)
{
    for (const char* icon : {"checkbox_inactive", "checkbox_active", "checkbox_disabled_inactive",
                             "checkbox_disabled_active", "radiobutton_inactive", "radiobutton_active",
                             "radiobutton_disabled", "chevron_down", "chevron_up"}) {
        const QResource resource(QStringLiteral(":/commonui/resources/icons/%1.png").arg(icon));
        EXPECT_TRUE(resource.isValid()) << icon;
        EXPECT_FALSE(IsCompressed(resource)) << icon;
    }
    const QResource sheet(kSheet);
    ASSERT_TRUE(sheet.isValid());
    EXPECT_TRUE(IsCompressed(sheet));
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    EXPECT_EQ(sheet.compressionAlgorithm(), QResource::ZlibCompression);
#endif
    EXPECT_LT(sheet.size(), 3072);
    // Modification times are recorded from format version 2 of the tree on.
    EXPECT_TRUE(sheet.lastModified().isValid());
    const QResource palette(kPalette);
    ASSERT_TRUE(palette.isValid());
    EXPECT_FALSE(IsCompressed(palette));
    EXPECT_EQ(palette.size(), 129);
}

// Byte-exact: CR LF line ends, and the sheet's mixed indentation.
TEST(ThemeResourcesTest, PaletteAndSheetTemplateBytes)
{
    EXPECT_EQ(Read(kPalette), QByteArray("clone=#646464\r\njango=#333538\r\nsnoke=#1E2023\r\n"
                                         "vader=#141518\r\nrey=#CFCFCF\r\nobi=#214B98\r\n"
                                         "kylo=#B82115\r\nlight=#FFFFFF\r\ndark=#000000\r\n"));
    const QByteArray sheet = Read(kSheet);
    EXPECT_EQ(sheet.size(), 3072);
    EXPECT_TRUE(sheet.endsWith("\r\n"));
    EXPECT_EQ(sheet.count('\n'), sheet.count("\r\n")) << "a line ends in a bare LF";
    EXPECT_EQ(sheet.count('\r'), sheet.count("\r\n")) << "a bare CR";
    EXPECT_TRUE(sheet.contains("\r\n\t")) << "no tab-indented line";
    EXPECT_TRUE(sheet.contains("\r\n    ")) << "no line indented with four spaces";
}
