# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""A real SMTP server on the loopback for tests, with the moods of servers out there.

    smtp_server.py FOLDER MOOD...

It writes the port it listens on into FOLDER/port, and each mail that it takes as FOLDER/1.eml with FOLDER/1.json
beside it: sender, recipients, whether the connection was encrypted, and who logged in. Moods:

    tls          offers STARTTLS with FOLDER/cert.pem and FOLDER/key.pem, and takes nothing without it
    auth         takes nothing without the login ana / secreto ;"ñ
    refuse       refuses recipients whose address begins with "nadie"
    sender       refuses every sender
    reject       refuses every text
    drop         closes the connection in the middle of the text
    drop-after   closes the connection after the text, without an answer
    silent       takes the text and never answers
    mute         takes the connection and never greets
    small        announces and allows texts of 1 MB at the most
"""
import asyncio
import json
import os
import ssl
import sys

from aiosmtpd.smtp import SMTP, AuthResult, LoginPassword

folder, moods = sys.argv[1], set(sys.argv[2:])


class Keeper:
    """Keeps what it is given."""

    def __init__(self):
        self.count = 0

    async def handle_MAIL(self, server, session, envelope, address, options):
        if "sender" in moods:
            return "550 5.7.1 Sender not welcome"
        envelope.mail_from = address
        return "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, options):
        if "refuse" in moods and address.startswith("nadie"):
            return "550 5.1.1 No such user here"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if "reject" in moods:
            return "554 5.6.0 Message looks like spam"
        if "drop-after" in moods:
            server.transport.abort()
            await asyncio.Event().wait()
        if "silent" in moods:
            note("silent")
            await asyncio.Event().wait()
        self.count += 1
        name = os.path.join(folder, str(self.count))
        with open(name + ".eml", "wb") as file:
            file.write(envelope.original_content)
        login = session.auth_data.login.decode() if session.auth_data else ""
        with open(name + ".json", "w", encoding="utf-8") as file:
            json.dump({"from": envelope.mail_from, "to": envelope.rcpt_tos, "tls": session.ssl is not None,
                       "login": login}, file)
        return "250 2.0.0 Taken"


class Dropping(SMTP):
    """Ends the connection with the first bytes of the text."""

    async def smtp_DATA(self, arg):
        await self.push("354 Go ahead")
        await self._reader.read(20)
        self.transport.abort()


def authenticate(server, session, envelope, mechanism, data):
    good = isinstance(data, LoginPassword) and data.login == b"ana" and data.password == 'secreto ;"ñ'.encode()
    return AuthResult(success=good, handled=False, auth_data=data if good else None)


def note(name, text=""):
    """A file that is there whole or not at all."""
    path = os.path.join(folder, name)
    with open(path + ".part", "w", encoding="utf-8") as file:
        file.write(text)
    os.rename(path + ".part", path)


def server():
    context = None
    if "tls" in moods:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(os.path.join(folder, "cert.pem"), os.path.join(folder, "key.pem"))
    kind = Dropping if "drop" in moods else SMTP
    return kind(keeper, hostname="prueba", tls_context=context, require_starttls=context is not None,
                auth_required="auth" in moods, auth_require_tls=False,
                authenticator=authenticate if "auth" in moods else None,
                data_size_limit=1_000_000 if "small" in moods else 50_000_000, timeout=3600)


class Mute(asyncio.Protocol):
    """Says nothing."""


keeper = Keeper()


async def main():
    listener = await asyncio.get_running_loop().create_server(Mute if "mute" in moods else server, "127.0.0.1", 0)
    note("port", str(listener.sockets[0].getsockname()[1]))
    await listener.serve_forever()


asyncio.run(main())
