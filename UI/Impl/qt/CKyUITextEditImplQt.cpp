#include "UI/Impl/CKyUITextEditImpl.h"

#include "UI/CKyUITextEdit.h"
#include "UI/Impl/qt/CKyUITextEditFrontend.h"

#include <QtGui/QTextCursor>
#include <QtGui/QValidator>

namespace
{
CKyUITextEditFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUITextEditFrontend*>(owner->getHandle());
}

// The validator of an input type, owned by the widget; null for free text.
QValidator* ValidatorFor(int type, QLineEdit* edit)
{
    if (type == CKyUITextEdit::IntegerInput)
        return new QIntValidator(edit);
    if (type == CKyUITextEdit::DecimalInput) {
        // Takes the current locale, and with it its decimal separator.
        auto* validator = new QDoubleValidator(edit);
        validator->setNotation(QDoubleValidator::StandardNotation);
        return validator;
    }
    return nullptr;
}

void ApplyInputType(QLineEdit* edit, int type)
{
    edit->setEchoMode(type == CKyUITextEdit::PasswordInput ? QLineEdit::Password : QLineEdit::Normal);
    const QValidator* previous = edit->validator();
    edit->setValidator(ValidatorFor(type, edit));
    // Only the validators made here belong to the widget.
    if (previous && previous->parent() == edit)
        delete previous;
}

// A line edit is a document of one line: up and the starts lead home, down
// and the ends to the end.
void MoveCursorIn(QLineEdit* edit, QTextCursor::MoveOperation operation, bool mark)
{
    switch (operation) {
    case QTextCursor::Start:
    case QTextCursor::Up:
    case QTextCursor::StartOfLine:
    case QTextCursor::StartOfBlock:
    case QTextCursor::PreviousBlock:
        edit->home(mark);
        break;
    case QTextCursor::End:
    case QTextCursor::Down:
    case QTextCursor::EndOfLine:
    case QTextCursor::EndOfBlock:
    case QTextCursor::NextBlock:
        edit->end(mark);
        break;
    case QTextCursor::PreviousCharacter:
    case QTextCursor::Left:
        edit->cursorBackward(mark, 1);
        break;
    case QTextCursor::NextCharacter:
    case QTextCursor::Right:
        edit->cursorForward(mark, 1);
        break;
    case QTextCursor::StartOfWord:
    case QTextCursor::PreviousWord:
    case QTextCursor::WordLeft:
        edit->cursorWordBackward(mark);
        break;
    case QTextCursor::EndOfWord:
    case QTextCursor::NextWord:
    case QTextCursor::WordRight:
        edit->cursorWordForward(mark);
        break;
    default:
        break;
    }
}
} // namespace

CKyUITextEditImpl::~CKyUITextEditImpl()
{
    // The widget is deleted later; nothing it reports meanwhile may reach us.
    QObject::disconnect(m_textChangedConnection);
    QObject::disconnect(m_returnPressedConnection);
}

void CKyUITextEditImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUITextEditFrontend;
    frontend->setStyleSheet(QStringLiteral("QLineEdit { }"));
    owner()->setHandle(frontend);
    m_textChangedConnection = QObject::connect(frontend, &QLineEdit::textChanged, frontend,
                                               [this](const QString& text) { OnEditTextChanged(text); });
    m_returnPressedConnection =
        QObject::connect(frontend, &QLineEdit::returnPressed, frontend, [this] { OnReturnPressed(); });
    // editingFinished stays unconnected unless the owner follows its user.
}

void CKyUITextEditImpl::SetTextImpl(const QString& text)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setText(text);
}

void CKyUITextEditImpl::SetPlaceholderTextImpl(const QString& text)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setPlaceholderText(text);
}

void CKyUITextEditImpl::SetInputMaskImpl(const QString& mask)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setInputMask(mask);
}

void CKyUITextEditImpl::SetClearButtonEnabledImpl(bool enabled)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setClearButtonEnabled(enabled);
}

void CKyUITextEditImpl::SetFocusImpl()
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setFocus(Qt::OtherFocusReason);
}

void CKyUITextEditImpl::SetInputTypeImpl(int type)
{
    // Off, the input type has no effect on the widget.
    if (!owner()->isInteractive())
        return;
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        ApplyInputType(frontend, type);
}

void CKyUITextEditImpl::SetReadOnlyImpl(bool readOnly)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setReadOnly(readOnly);
}

void CKyUITextEditImpl::MoveCursorImpl(int operation, int mode)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        MoveCursorIn(frontend, static_cast<QTextCursor::MoveOperation>(operation),
                     mode == QTextCursor::KeepAnchor);
}

void CKyUITextEditImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    CKyUITextEditFrontend* frontend = FrontendOf(owner());
    if (!interactive || !frontend)
        return;
    if (m_readOnlyGiven)
        frontend->setReadOnly(m_readOnly);
    if (m_inputTypeGiven)
        ApplyInputType(frontend, m_inputType);
    // The frontend keeps Return from the toolkit's own handling, which would
    // end the editing: it is ended here, on the same condition.
    LinkUserInput(QObject::connect(frontend, &QLineEdit::returnPressed, frontend, [this, frontend] {
        if (frontend->hasAcceptableInput())
            OnEditingFinished();
    }));
    // Otherwise only a focus loss leads there.
    LinkUserInput(
        QObject::connect(frontend, &QLineEdit::editingFinished, frontend, [this] { OnFocusLost(); }));
}

void CKyUITextEditImpl::SelectAllImpl()
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->selectAll();
}
