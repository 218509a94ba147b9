#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtGui/QColor>
#include <QtGui/QImage>

// The theme resources as the library carries them. main() registers nothing:
// whatever is found here was registered by the library's own static
// initialiser.

namespace {

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

QString Argb(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y).name(QColor::HexArgb);
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

TEST(ThemeResourcesTest, IconsHaveTheirSizesAndTransparentMargins)
{
    for (const char* icon : kIcons) {
        const QImage image(IconPath(icon));
        ASSERT_FALSE(image.isNull()) << icon;
        EXPECT_TRUE(image.hasAlphaChannel()) << icon;
        const bool chevron = QByteArray(icon).startsWith("chevron");
        EXPECT_EQ(image.size(), chevron ? QSize(16, 10) : QSize(72, 72)) << icon;
        if (chevron)
            continue;
        // Nothing is painted in the 16 pixel margin.
        for (int i = 0; i < 72; i += 4) {
            for (const QPoint& p : {QPoint(i, 0), QPoint(i, 15), QPoint(i, 56), QPoint(i, 71), QPoint(0, i),
                                    QPoint(15, i), QPoint(56, i), QPoint(71, i)})
                ASSERT_EQ(image.pixelColor(p).alpha(), 0) << icon << " at " << p.x() << "," << p.y();
        }
    }
}

TEST(ThemeResourcesTest, IndicatorIconsUseThePaletteColours)
{
    struct Sample
    {
        const char* icon;
        QPoint point;
        const char* argb;
    };
    // Points: the centre, a point of the fill away from any mark, the outline
    // at the top, and a point on the check mark.
    const Sample samples[] = {
        {"checkbox_inactive.png", {36, 36}, "#ff141518"},
        {"checkbox_inactive.png", {36, 17}, "#ff000000"},
        {"checkbox_active.png", {22, 22}, "#ff214b98"},
        {"checkbox_active.png", {32, 42}, "#ffffffff"},
        {"checkbox_disabled_inactive.png", {36, 36}, "#ff333538"},
        {"checkbox_disabled_inactive.png", {36, 17}, "#ff646464"},
        {"checkbox_disabled_active.png", {22, 22}, "#ff333538"},
        {"checkbox_disabled_active.png", {36, 17}, "#ff646464"},
        {"checkbox_disabled_active.png", {32, 42}, "#ff646464"},
        {"radiobutton_inactive.png", {36, 36}, "#ff141518"},
        {"radiobutton_inactive.png", {36, 17}, "#ff000000"},
        {"radiobutton_active.png", {36, 36}, "#ffffffff"},
        {"radiobutton_active.png", {36, 24}, "#ff214b98"},
        {"radiobutton_disabled.png", {36, 36}, "#ff333538"},
        {"radiobutton_disabled.png", {36, 17}, "#ff646464"},
    };
    for (const Sample& sample : samples) {
        const QImage image(IconPath(sample.icon));
        EXPECT_EQ(Argb(image, sample.point.x(), sample.point.y()), QString::fromLatin1(sample.argb))
            << sample.icon << " at " << sample.point.x() << "," << sample.point.y();
    }
}

TEST(ThemeResourcesTest, ChevronsPointDownAndUp)
{
    const QImage down(IconPath("chevron_down.png"));
    const QImage up(IconPath("chevron_up.png"));
    // The arms start at the top corners of the down chevron and at the bottom
    // corners of the up chevron; the tip lies at the other edge.
    EXPECT_EQ(Argb(down, 2, 2), QStringLiteral("#ffd0d0d0"));
    EXPECT_EQ(Argb(down, 13, 2), QStringLiteral("#ffd0d0d0"));
    EXPECT_EQ(down.pixelColor(2, 7).alpha(), 0);
    EXPECT_EQ(down.pixelColor(8, 2).alpha(), 0);
    EXPECT_GT(down.pixelColor(8, 7).alpha(), 0);

    EXPECT_EQ(Argb(up, 2, 7), QStringLiteral("#ffd0d0d0"));
    EXPECT_EQ(Argb(up, 13, 7), QStringLiteral("#ffd0d0d0"));
    EXPECT_EQ(up.pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(up.pixelColor(8, 7).alpha(), 0);
    EXPECT_GT(up.pixelColor(8, 2).alpha(), 0);
}
