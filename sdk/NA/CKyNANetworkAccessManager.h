#pragma once

#include "commonui_export.h"

#include "NA/CKyNAAuthentication.h"
#include "NA/CKyNAProxy.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QByteArray>

class QIODevice;
class QJsonDocument;
class QJsonObject;
class CKyNAMultipartForm;
class CKyNANetworkReply;
class CKyNANetworkRequest;

/// Starts HTTP transfers, each bounded by a time-out of 30000 ms unless its
/// request sets one (see \ref behaviours_network "behaviours"). Each call
/// returns a new reply that the caller owns and deletes before the manager; a
/// transfer that runs longer than its time-out is aborted.
///
/// Each operation starts the transfer at once and returns a distinct
/// CKyNANetworkReply, also for equal requests. The time-out bounds the whole
/// transfer, not a period of silence: progress does not restart it, and it
/// never fires before its time. An
/// aborted transfer reports `error(OperationCanceledError)` and then
/// `finished()`. The manager keeps no list of its replies, and reports nothing
/// itself: failures arrive through the reply.
///
/// The time-out clock starts when the operation is called, so it includes the
/// time the request waits for one of the toolkit's six connections per host
/// when more transfers to the same host run at once. For long downloads, set
/// a generous time-out and an inactivity time-out
/// (CKyNANetworkRequest::setInactivityTimeout()).
///
/// **Lifetime.** Deleting the manager ends at once every transfer whose reply
/// has not been deleted yet; such replies must not be used afterwards, so
/// delete replies first. The reply remembers the address of the request it was
/// started with (see CKyNANetworkReply::request()).
///
/// See \ref services.
class COMMONUI_EXPORT CKyNANetworkAccessManager : public CKyUIObject
{
public:
    /// A manager with its own toolkit network access manager.
    CKyNANetworkAccessManager();
    /// Deletes the toolkit manager at once, and with it the transfers of the
    /// replies not deleted yet.
    ~CKyNANetworkAccessManager() override;

    /// Starts a GET; the caller owns the returned reply.
    CKyNANetworkReply* get(const CKyNANetworkRequest& request);
    /// Starts a POST of what @p data yields; the device must stay open until
    /// the upload is done. The caller owns the returned reply.
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, QIODevice* data);
    /// Starts a POST of @p data; the caller owns the returned reply.
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const QByteArray& data);
    /// Starts a PUT of what @p data yields; the device must stay open until
    /// the upload is done. The caller owns the returned reply.
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, QIODevice* data);
    /// Starts a PUT of @p data; the caller owns the returned reply.
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const QByteArray& data);
    /// Starts a POST of @p json, compact, with the Content-Type
    /// "application/json" unless the request sets one. The caller owns the
    /// returned reply; CKyNANetworkReply::readJson() reads a JSON answer.
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const QJsonDocument& json);
    /// Starts a POST of the object @p json, as post() of a QJsonDocument.
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const QJsonObject& json);
    /// Starts a PUT of @p json, as post() of a QJsonDocument does.
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const QJsonDocument& json);
    /// Starts a PUT of the object @p json, as post() of a QJsonDocument.
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const QJsonObject& json);
    /// Starts a POST of @p form as "multipart/form-data" (the Content-Type
    /// names the boundary unless the request sets one). Files are read from
    /// disk while the upload runs; the form itself may go at once. The caller
    /// owns the returned reply.
    ///
    /// A redirect that asks for the upload again (307, 308) is not followed:
    /// the reply ends with `error(CKyNANetworkReply::ContentReSendError)`.
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const CKyNAMultipartForm& form);
    /// Starts a PUT of @p form, as post() of a form does.
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const CKyNAMultipartForm& form);
    /// Starts a DELETE; the caller owns the returned reply.
    CKyNANetworkReply* deleteResource(const CKyNANetworkRequest& request);
    /// Starts a HEAD: the reply finishes with the headers and no body. The
    /// caller owns the returned reply.
    CKyNANetworkReply* head(const CKyNANetworkRequest& request);
    /// Starts a transfer with any method (@p verb, such as "PATCH" or
    /// "OPTIONS"), sending @p body when it is not empty; guarded by the same
    /// time-outs as the other operations. "HEAD" goes as head() does, without
    /// a body. The caller owns the returned reply.
    CKyNANetworkReply* sendCustomRequest(const CKyNANetworkRequest& request, const QByteArray& verb,
                                         const QByteArray& body = QByteArray());

    /// How the transfers started from now on reach the network; the default
    /// CKyNAProxy() leaves the application's setting in force. An invalid
    /// proxy (CKyNAProxy::isValid()) is ignored. See \ref services_proxy.
    void setProxy(const CKyNAProxy& proxy);
    /// The proxy given with setProxy(); CKyNAProxy() unless set.
    CKyNAProxy proxy() const;
    /// Emitted when the proxy asks for credentials that were not given ahead
    /// (CKyNAProxy::setCredentials()), or refused those sent; a slot answers
    /// with CKyNAAuthentication::setCredentials(). Without an answer, or when
    /// the answer to a refusal is refused too, the transfer ends with
    /// CKyNANetworkReply::ProxyAuthenticationRequiredError (105).
    CKyUISignal<void(CKyNAAuthentication&)>& proxyAuthenticationRequired();
    /// Emitted when a server answers 401 (basic or digest) and the request
    /// carries no credentials of its own (CKyNANetworkRequest::setCredentials()),
    /// or it refused those sent; a slot answers with
    /// CKyNAAuthentication::setCredentials(). Without an answer, or when the
    /// answer to a refusal is refused too, the transfer ends with
    /// CKyNANetworkReply::AuthenticationRequiredError (204): a 401 never
    /// loops. See \ref services_signin.
    CKyUISignal<void(CKyNAAuthentication&)>& authenticationRequired();
};
