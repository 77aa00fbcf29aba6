// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/smtp.h"

#include "host/mail/encoding.h"

#include <curl/curl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace dn::host {
namespace {

struct HandleEnd {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
struct MultiEnd {
    void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
};
struct ListEnd {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using Handle = std::unique_ptr<CURL, HandleEnd>;
using Multi = std::unique_ptr<CURLM, MultiEnd>;
using List = std::unique_ptr<curl_slist, ListEnd>;

// What one transfer reads and what it remembers for the case of a failure.
struct Transfer {
    const std::string& text;
    SendProgress& progress;
    std::size_t read = 0;
    std::string asked = {};   // the last command that names a recipient
    std::string replied = {}; // the last line of the server but for its farewell
    curl_socket_t socket = CURL_SOCKET_BAD;
};

std::size_t giveText(char* buffer, std::size_t size, std::size_t count, void* context)
{
    auto& transfer = *static_cast<Transfer*>(context);
    const std::size_t bytes = std::min(size * count, transfer.text.size() - transfer.read);
    std::copy_n(transfer.text.data() + transfer.read, bytes, buffer);
    transfer.read += bytes;
    return bytes;
}

std::size_t takeReply(char* line, std::size_t size, std::size_t count, void* context)
{
    const std::string_view reply(line, size * count);
    // The farewell, which follows a refusal as well, says nothing.
    if (reply.rfind("221", 0) != 0) static_cast<Transfer*>(context)->replied = reply;
    return reply.size();
}

int keepSocket(void* context, curl_socket_t socket, curlsocktype)
{
    static_cast<Transfer*>(context)->socket = socket;
    return CURL_SOCKOPT_OK;
}

int closeSocket(void* context, curl_socket_t socket)
{
    auto& transfer = *static_cast<Transfer*>(context);
    if (transfer.socket == socket) transfer.socket = CURL_SOCKET_BAD;
    return ::close(socket);
}

int showProgress(void* context, curl_off_t, curl_off_t, curl_off_t total, curl_off_t done)
{
    const auto& transfer = *static_cast<Transfer*>(context);
    transfer.progress.total = total;
    transfer.progress.done = done;
    if (!transfer.progress.cancelled) return 0;
    // Without this the library would say farewell, and wait for a server that may have stopped answering.
    if (transfer.socket != CURL_SOCKET_BAD) ::shutdown(transfer.socket, SHUT_RDWR);
    return 1;
}

// Of what goes to the server only the recipients are looked at: other commands hold the password.
int watch(CURL*, curl_infotype type, char* data, std::size_t size, void* context)
{
    const std::string_view line(data, size);
    if (type == CURLINFO_HEADER_OUT && line.rfind("RCPT TO:", 0) == 0)
        static_cast<Transfer*>(context)->asked = line;
    return 0;
}

std::string withReply(const std::string& text, const Transfer& transfer)
{
    const std::string& reply = transfer.replied;
    const bool refused = reply.size() > 3 && (reply[0] == '4' || reply[0] == '5');
    if (!refused) return text;
    std::string line = oneLine(reply);
    line.erase(line.find_last_not_of(' ') + 1);
    return text + "\n\nEl servidor respondió: " + line;
}

std::string recipientOf(const Transfer& transfer)
{
    const std::size_t open = transfer.asked.find('<');
    const std::size_t close = transfer.asked.find('>');
    if (open == std::string::npos || close == std::string::npos) return {};
    return transfer.asked.substr(open + 1, close - open - 1);
}

// The server has everything, but nobody knows whether it took it.
constexpr const char* inDoubt =
    "\n\nEl servidor ya había recibido el texto: pudo haberlo aceptado sin alcanzar a confirmarlo.";

std::string lost(const std::string& text, const Transfer& transfer)
{
    return transfer.read == transfer.text.size() ? text + inDoubt : text;
}

std::string refusal(const MailSettings& settings, const Transfer& transfer)
{
    const std::string recipient = recipientOf(transfer);
    if (transfer.replied.empty() || (transfer.replied[0] != '4' && transfer.replied[0] != '5'))
        return lost("Se cortó la conexión con el servidor de correo «" + settings.host() + "».", transfer);
    if (transfer.read > 0) return withReply("El servidor de correo rechazó el mensaje.", transfer);
    if (transfer.replied.rfind("552", 0) == 0)
        return withReply("El mensaje es demasiado grande para el servidor de correo.", transfer);
    if (recipient.empty()) return withReply("El servidor de correo no acepta al remitente.", transfer);
    return withReply("El servidor de correo no acepta al destinatario «" + recipient + "»; no se envió a nadie.",
                     transfer);
}

std::string reason(CURLcode code, const MailSettings& settings, const Transfer& transfer)
{
    const std::string server = "El servidor de correo «" + settings.host() + "»";
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return "No se encuentra el servidor de correo «" + settings.host() + "».";
    case CURLE_COULDNT_CONNECT:
        return server + " no acepta la conexión.";
    case CURLE_OPERATION_TIMEDOUT:
        return lost(server + " no respondió en " + std::to_string(settings.timeout) + " segundos.", transfer);
    case CURLE_LOGIN_DENIED:
        return withReply(server + " no aceptó el usuario o la clave.", transfer);
    case CURLE_USE_SSL_FAILED:
        return server + " no ofrece una conexión cifrada; no se envió nada.";
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
        return "No se puede confiar en el certificado del servidor de correo «" + settings.host() +
               "»; no se envió nada.";
    case CURLE_SSL_CACERT_BADFILE:
        return "No se puede leer el archivo de certificados «" + settings.ca + "».";
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_GOT_NOTHING:
        return refusal(settings, transfer);
    default:
        return withReply("No se pudo enviar el correo: " + std::string(curl_easy_strerror(code)) + ".", transfer);
    }
}

void setServer(CURL* handle, const MailSettings& settings)
{
    curl_easy_setopt(handle, CURLOPT_URL, settings.url.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_QUICK_EXIT, 1L);   // or a cancel waits for a name server that is silent
    curl_easy_setopt(handle, CURLOPT_FORBID_REUSE, 1L); // the farewell is said under the time-outs of this handle
    curl_easy_setopt(handle, CURLOPT_USE_SSL, long{settings.tls ? CURLUSESSL_ALL : CURLUSESSL_TRY});
    curl_easy_setopt(handle, CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
    if (!settings.ca.empty()) curl_easy_setopt(handle, CURLOPT_CAINFO, settings.ca.c_str());
    if (!settings.user.empty()) {
        curl_easy_setopt(handle, CURLOPT_USERNAME, settings.user.c_str());
        curl_easy_setopt(handle, CURLOPT_PASSWORD, settings.password.c_str());
    }
    const long patience = settings.timeout;
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT, patience);
    curl_easy_setopt(handle, CURLOPT_SERVER_RESPONSE_TIMEOUT, patience);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_TIME, patience);
}

void setTransfer(CURL* handle, Transfer& transfer)
{
    curl_easy_setopt(handle, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(handle, CURLOPT_READFUNCTION, &giveText);
    curl_easy_setopt(handle, CURLOPT_READDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(transfer.text.size()));
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &takeReply);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &takeReply);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, &showProgress);
    curl_easy_setopt(handle, CURLOPT_XFERINFODATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_SOCKOPTFUNCTION, &keepSocket);
    curl_easy_setopt(handle, CURLOPT_SOCKOPTDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_CLOSESOCKETFUNCTION, &closeSocket);
    curl_easy_setopt(handle, CURLOPT_CLOSESOCKETDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_VERBOSE, 1L); // only so that `watch` is called: nothing is written anywhere
    curl_easy_setopt(handle, CURLOPT_DEBUGFUNCTION, &watch);
    curl_easy_setopt(handle, CURLOPT_DEBUGDATA, &transfer);
}

List listOf(const std::vector<std::string>& texts)
{
    List list;
    for (const std::string& text : texts) {
        curl_slist* const longer = curl_slist_append(list.get(), text.c_str());
        if (longer == nullptr) throw std::bad_alloc();
        static_cast<void>(list.release()); // it is the front of the longer one
        list.reset(longer);
    }
    return list;
}

// The easy interface would look at a cancel once in a second only.
CURLcode perform(CURL* handle)
{
    constexpr int looksEvery = 50; // milliseconds
    const Multi multi(curl_multi_init());
    if (!multi || curl_multi_add_handle(multi.get(), handle) != CURLM_OK) return CURLE_FAILED_INIT;
    int running = 0;
    CURLMcode code = curl_multi_perform(multi.get(), &running);
    while (code == CURLM_OK && running > 0) {
        code = curl_multi_poll(multi.get(), nullptr, 0, looksEvery, nullptr);
        if (code == CURLM_OK) code = curl_multi_perform(multi.get(), &running);
    }
    int left = 0;
    const CURLMsg* const end = curl_multi_info_read(multi.get(), &left);
    const CURLcode result = end == nullptr ? CURLE_FAILED_INIT : end->data.result;
    curl_multi_remove_handle(multi.get(), handle);
    return result;
}

} // namespace

void sendBySmtp(const MailSettings& settings, const Envelope& envelope, const std::string& text,
                SendProgress& progress)
{
    static const CURLcode begun = curl_global_init(CURL_GLOBAL_DEFAULT);
    Transfer transfer{text, progress}; // ahead of the handle, which closes its socket
    const Handle handle(curl_easy_init());
    if (begun != CURLE_OK || !handle) throw HostError("No se pudo preparar el envío de correo.");
    const List recipients = listOf(envelope.recipients);
    setServer(handle.get(), settings);
    setTransfer(handle.get(), transfer);
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_FROM, envelope.from.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_RCPT, recipients.get());
    const CURLcode code = perform(handle.get());
    if (code == CURLE_ABORTED_BY_CALLBACK) throw SendCancelled(lost("Se canceló el envío.", transfer));
    if (code == CURLE_LOGIN_DENIED) throw LoginRefused(reason(code, settings, transfer));
    if (code != CURLE_OK) throw HostError(reason(code, settings, transfer));
}

} // namespace dn::host
