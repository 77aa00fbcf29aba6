// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/secret_keyring.h"

#include <libsecret/secret.h>

#include <memory>

namespace dn::host {
namespace {

constexpr const char* attribute = "cuenta";

const SecretSchema* schema()
{
    static const SecretSchema known = [] {
        SecretSchema made{};
        made.name = "org.dncontacts.Clave";
        made.flags = SECRET_SCHEMA_NONE;
        made.attributes[0] = {attribute, SECRET_SCHEMA_ATTRIBUTE_STRING};
        return made;
    }();
    return &known;
}

// Whoever calls needs no reason: he asks the operator instead.
struct Failure {
    Failure() = default;
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;
    ~Failure() { g_clear_error(&error); }

    GError* error = nullptr;
};

} // namespace

bool SecretKeyring::answers()
{
    Failure failure;
    SecretService* const service = secret_service_get_sync(SECRET_SERVICE_OPEN_SESSION, nullptr, &failure.error);
    if (service == nullptr) return false;
    g_object_unref(service);
    return true;
}

std::optional<std::string> SecretKeyring::find(const std::string& account)
{
    Failure failure;
    const std::unique_ptr<gchar, void (*)(gchar*)> password(
        secret_password_lookup_sync(schema(), nullptr, &failure.error, attribute, account.c_str(), nullptr),
        secret_password_free);
    if (password == nullptr) return std::nullopt;
    return std::string(password.get());
}

bool SecretKeyring::keep(const std::string& account, const std::string& password)
{
    Failure failure;
    const std::string label = "DN Contactos: " + account;
    return secret_password_store_sync(schema(), SECRET_COLLECTION_DEFAULT, label.c_str(), password.c_str(),
                                      nullptr, &failure.error, attribute, account.c_str(), nullptr) != 0;
}

void SecretKeyring::forget(const std::string& account)
{
    Failure failure;
    secret_password_clear_sync(schema(), nullptr, &failure.error, attribute, account.c_str(), nullptr);
}

} // namespace dn::host
