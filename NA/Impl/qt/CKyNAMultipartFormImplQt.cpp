#include "NA/Impl/CKyNAMultipartFormImpl.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtNetwork/QHttpMultiPart>

namespace
{

// As browsers send a file name: what would end the quoted value is
// percent-encoded.
QByteArray QuotedFileName(const QString& path)
{
    QByteArray name = QFileInfo(path).fileName().toUtf8();
    name.replace('"', "%22").replace('\r', "%0D").replace('\n', "%0A");
    return '"' + name + '"';
}

} // namespace

bool CKyNAMultipartFormImpl::ReadableFileImpl(const QString& path)
{
    // The upload's length is the file's size: a pipe or a device has none.
    const QFileInfo info(path);
    return info.isFile() && info.isReadable();
}

QHttpMultiPart* CKyNAMultipartFormImpl::CreateMultiPartImpl(bool& complete) const
{
    auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    complete = true;
    for (const Part& part : m_parts) {
        QHttpPart toolkitPart;
        QByteArray disposition = "form-data; name=\"" + part.name + '"';
        if (part.path.isEmpty()) {
            toolkitPart.setRawHeader("Content-Disposition", disposition);
            toolkitPart.setBody(part.value);
            multiPart->append(toolkitPart);
            continue;
        }
        // Read a piece at a time while the upload runs; goes with the multipart.
        auto* file = new QFile(part.path, multiPart);
        if (!file->open(QIODevice::ReadOnly)) {
            complete = false;
            delete file;
            continue;
        }
        toolkitPart.setRawHeader("Content-Disposition",
                                 disposition + "; filename=" + QuotedFileName(part.path));
        toolkitPart.setRawHeader("Content-Type", part.contentType.isEmpty()
                                                     ? QByteArray("application/octet-stream")
                                                     : part.contentType);
        toolkitPart.setBodyDevice(file);
        multiPart->append(toolkitPart);
    }
    return multiPart;
}
