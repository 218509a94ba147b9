#pragma once

#include "UI/CKyUIStyle.h"

#include <QtCore/QString>

class QColor;
class QDialog;

// Which sheet a dialog run takes: the compiled-in theme, or one of the
// variants under ":/commonui/variants/", chosen by the client or picked from
// the host's palette.
namespace KyThemeVariant
{
void Choose(CKyUIStyle::Variant variant);
CKyUIStyle::Variant Chosen();
// The chosen variant with FollowHost decided against the application palette
// as it is now: Default, Dark or Light.
CKyUIStyle::Variant Current();
// The colour's relative luminance (WCAG), 0 for black to 1 for white.
double Luminance(const QColor& colour);
// The variant's whole sheet, read once; empty for Default or when missing.
QString Sheet(CKyUIStyle::Variant variant);
// Sets the current variant's sheet on the dialog and, under FollowHost, keeps
// the dialog watching the host's palette.
void ApplyTo(QDialog* dialog);
} // namespace KyThemeVariant
