#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QResource>

// The theme resources as the library carries them. main() registers nothing:
// whatever is found here was registered by the library's own static
// initialiser. How the icons look is seen in the gallery pictures.

namespace
{

const char kSheetPath[] = ":/commonui/resources/qss/style.qss";
const char kPalettePath[] = ":/commonui/resources/qss/style.colors";

QByteArray ReadResource(const char* path)
{
    QFile file(QString::fromLatin1(path));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

QString IconPath(const char* name)
{
    return QStringLiteral(":/commonui/resources/icons/") + QString::fromLatin1(name);
}

const char* const kIcons[] = {
    "checkbox_inactive.png",        "checkbox_active.png",      "checkbox_disabled_inactive.png",
    "checkbox_disabled_active.png", "radiobutton_inactive.png", "radiobutton_active.png",
    "radiobutton_disabled.png",     "chevron_down.png",         "chevron_up.png",
};

bool IsCompressed(const QResource& resource)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    return resource.compressionAlgorithm() != QResource::NoCompression;
#else
    return resource.isCompressed();
#endif
}

} // namespace

TEST(ThemeResourcesTest, AllRegisteredWithoutAnyCall)
{
    EXPECT_TRUE(QFile::exists(QString::fromLatin1(kSheetPath)));
    EXPECT_TRUE(QFile::exists(QString::fromLatin1(kPalettePath)));
    for (const char* icon : kIcons)
        EXPECT_TRUE(QFile::exists(IconPath(icon))) << icon;
}

TEST(ThemeResourcesTest, PaletteIsNineCrLfLinesOf129Bytes)
{
    const QByteArray palette = ReadResource(kPalettePath);
    EXPECT_EQ(palette.size(), 129);
    EXPECT_EQ(palette, QByteArray("clone=#646464\r\n"
                                  "jango=#333538\r\n"
                                  "snoke=#1E2023\r\n"
                                  "vader=#141518\r\n"
                                  "rey=#CFCFCF\r\n"
                                  "obi=#214B98\r\n"
                                  "kylo=#B82115\r\n"
                                  "light=#FFFFFF\r\n"
                                  "dark=#000000\r\n"));
}

TEST(ThemeResourcesTest, SheetTemplateKeepsCrLfAndMixedIndentation)
{
    const QByteArray sheet = ReadResource(kSheetPath);
    EXPECT_EQ(sheet.size(), 3072);
    EXPECT_TRUE(sheet.endsWith("\r\n"));
    EXPECT_EQ(sheet.count('\n'), sheet.count("\r\n")) << "a line ends in a bare LF";
    EXPECT_EQ(sheet.count('\r'), sheet.count("\r\n")) << "a bare CR";
    EXPECT_TRUE(sheet.contains("\r\n\t")) << "no tab-indented line";
    EXPECT_TRUE(sheet.contains("\r\n    ")) << "no line indented with four spaces";
}

TEST(ThemeResourcesTest, OnlyTheSheetIsCompressed)
{
    const QResource sheet(QString::fromLatin1(kSheetPath));
    ASSERT_TRUE(sheet.isValid());
    EXPECT_TRUE(IsCompressed(sheet));
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    EXPECT_EQ(sheet.compressionAlgorithm(), QResource::ZlibCompression);
#endif
    EXPECT_LT(sheet.size(), 3072);
    // Modification times are recorded from format version 2 of the tree on.
    EXPECT_TRUE(sheet.lastModified().isValid());

    const QResource palette(QString::fromLatin1(kPalettePath));
    EXPECT_FALSE(IsCompressed(palette));
    EXPECT_EQ(palette.size(), 129);
    for (const char* icon : kIcons)
        EXPECT_FALSE(IsCompressed(QResource(IconPath(icon)))) << icon;
}
