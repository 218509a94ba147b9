#pragma once

#include "commonui_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

class CKyNAMultipartFormImpl;

/// The fields and files of a "multipart/form-data" upload, handed to
/// CKyNANetworkAccessManager::post() or put(). A plain value, outside the
/// object tree: it only records what to send, and may go as soon as the
/// transfer has started.
///
/// Files are read from disk while the upload runs, a piece at a time, so a
/// large file is never held in memory; CKyNANetworkReply::uploadProgress()
/// reports the bytes sent. The transfer owns what it reads from and releases
/// it with the reply.
///
/// \code
/// CKyNAMultipartForm form;
/// form.addField("title", "bracket, rev. C");
/// form.addFile("model", "/tmp/bracket.step", "model/step");
/// CKyNANetworkReply* reply = manager.post(request, form);
/// \endcode
///
/// See \ref services_upload.
class COMMONUI_EXPORT CKyNAMultipartForm
{
public:
    /// An empty form.
    CKyNAMultipartForm();
    /// A copy with the same parts.
    CKyNAMultipartForm(const CKyNAMultipartForm& other);
    /// Takes the parts of @p other.
    CKyNAMultipartForm& operator=(const CKyNAMultipartForm& other);
    ~CKyNAMultipartForm();

    /// Adds a text field sent as UTF-8. False, and nothing added, when
    /// @p name is empty or holds a double quote, CR, LF or NUL (it could not
    /// be told from the part's other headers); one warning then says why.
    bool addField(const QString& name, const QString& value);
    /// Adds the file at @p path, sent under its own file name with
    /// @p contentType ("application/octet-stream" when empty). False, and
    /// nothing added, when the name is refused as by addField(), the content
    /// type holds CR, LF or NUL, or @p path is no readable file now.
    ///
    /// The file is opened when the transfer starts. One that can no longer be
    /// read then makes the transfer fail with
    /// `error(CKyNANetworkReply::OperationCanceledError)` and `finished()`:
    /// a form is never sent without one of its parts.
    bool addFile(const QString& name, const QString& path, const QByteArray& contentType = QByteArray());
    /// The number of fields and files added.
    int count() const;

private:
    friend class CKyNANetworkAccessManagerImpl;
    CKyNAMultipartFormImpl* m_impl;
};
