#include "NA/CKyNAMultipartForm.h"

#include "NA/Impl/CKyNAMultipartFormImpl.h"

CKyNAMultipartForm::CKyNAMultipartForm()
    : m_impl(new CKyNAMultipartFormImpl)
{}

CKyNAMultipartForm::CKyNAMultipartForm(const CKyNAMultipartForm& other)
    : m_impl(new CKyNAMultipartFormImpl(*other.m_impl))
{}

CKyNAMultipartForm& CKyNAMultipartForm::operator=(const CKyNAMultipartForm& other)
{
    *m_impl = *other.m_impl;
    return *this;
}

CKyNAMultipartForm::~CKyNAMultipartForm()
{
    delete m_impl;
}

bool CKyNAMultipartForm::addField(const QString& name, const QString& value)
{
    return m_impl->addField(name, value);
}

bool CKyNAMultipartForm::addFile(const QString& name, const QString& path, const QByteArray& contentType)
{
    return m_impl->addFile(name, path, contentType);
}

int CKyNAMultipartForm::count() const
{
    return m_impl->count();
}
