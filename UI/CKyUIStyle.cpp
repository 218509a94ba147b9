#include "UI/CKyUIStyle.h"

#include "UI/Impl/qt/KyThemeResources.h"
#include "UI/Impl/qt/KyThemeVariant.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

std::shared_ptr<CKyUIStyle> g_pStyle;

std::shared_ptr<CKyUIStyle> GetStyle()
{
    if (!g_pStyle)
        g_pStyle = std::make_shared<CKyUIStyle>();
    return g_pStyle;
}

void CKyUIStyle::setVariant(Variant variant)
{
    KyThemeVariant::Choose(variant);
}

CKyUIStyle::Variant CKyUIStyle::variant()
{
    return KyThemeVariant::Chosen();
}

CKyUIStyle::CKyUIStyle()
    : styleSheet()
{
    Load();
}

void CKyUIStyle::Load()
{
    QString colorsText;
    if (!KyThemeResources::Read(QStringLiteral(":/commonui/resources/qss/style.colors"), colorsText))
        return;

    // Lines are cut at LF only, so every value keeps the CR in front of it;
    // the sheet's parser takes that CR for white space. The defaults of
    // split() keep empty parts and compare case-sensitively.
    QMap<QString, QString> colors;
    const QStringList lines = colorsText.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QStringList parts = line.split(QLatin1Char('='));
        if (parts.size() != 2)
            continue;
        colors.insert(parts.at(0), parts.at(1));
    }

    if (!KyThemeResources::Read(QStringLiteral(":/commonui/resources/qss/style.qss"), styleSheet))
        return;

    // Plain substring replacement in the map's key order; the shipped names
    // occur nowhere else in the sheet, and the values are hex colours.
    for (auto it = colors.constBegin(); it != colors.constEnd(); ++it)
        styleSheet.replace(it.key(), it.value());
}
