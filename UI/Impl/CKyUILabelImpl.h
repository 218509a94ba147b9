#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtGui/QIcon>

class QLabel;

// Drives a plain QLabel. Getters answer from the values stored here.
class CKyUILabelImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUILabelImpl(CKyUIObject* owner);
    ~CKyUILabelImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    void SetIcon(const QIcon& icon);
    const QIcon& Icon() const { return m_icon; }
    void SetFontSize(int size);
    int FontSize() const { return m_fontSize; }
    void SetWordWrap(bool on);
    bool WordWrap() const { return m_wordWrap; }
    void SetToolTip(const QString& toolTip);
    const QString& ToolTip() const { return m_toolTip; }
    void OnHelpTextSet(HelpText kind, const QString& text) override;

    // Drops the icon as well as the text. The public clear() empties the text
    // only, so nothing calls this yet.
    void clear();

    // Toolkit steps; each does nothing unless the handle is a QLabel.
    void SetTextImpl(const QString& text);
    void SetIconImpl(const QIcon& icon);
    void SetBoldTextImpl(bool bold);
    void SetFontSizeImpl(int size);
    void SetWordWrapImpl(bool on);
    void SetToolTipImpl(const QString& toolTip);
    // Not reachable from the public class yet.
    void SetBuddyImpl(CKyUIBaseView* buddy);

private:
    QLabel* GetLabel() const;

    QIcon m_icon;
    QString m_text;
    int m_fontSize = -1; // never read back: the sheet holds the size
    bool m_wordWrap = false;
    QString m_toolTip;
};
