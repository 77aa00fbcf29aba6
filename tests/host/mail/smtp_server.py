# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Real SMTP servers on the loopback for tests, with the moods of servers out there, and a reader of mails.

    smtp_server.py SOCKET

One process serves all tests of a program. Each connection to the Unix socket sends one line of JSON and gets one back:

    {"serve": FOLDER, "moods": [MOOD...]}   {"port": 40123}: a server of its own, for as long as the connection stands
    {"read": [FILE...]}                     what read_mail.py finds in each of the files

A server writes each mail that it takes as FOLDER/1.eml with FOLDER/1.json beside it: sender, recipients, whether the
connection was encrypted, and who logged in. A further line on its connection lets it go on. Moods:

    tls          offers STARTTLS with FOLDER/cert.pem and FOLDER/key.pem, and takes nothing without it
    smtps        is encrypted from the first byte on, with the same files
    auth         takes nothing without the login ana / secreto ;"ñ
    refuse       refuses recipients whose address begins with "nadie"
    sender       refuses every sender
    reject       refuses every text
    drop         closes the connection in the middle of the text
    drop-after   closes the connection after the text, without an answer
    silent       takes the text and never answers
    mute         takes the connection and never greets
    slow         reads the beginning of the text, and the rest when it is let go on
    rude         never answers the farewell
    small        announces and allows texts of 1 MB at the most
"""
import asyncio
import json
import os
import socket
import ssl
import sys

import read_mail
from aiosmtpd.smtp import SMTP, AuthResult, LoginPassword


class Server:
    """A mail server that keeps what it is given."""

    def __init__(self, folder, moods):
        self.folder, self.moods = folder, set(moods)
        self.count = 0
        self.goes_on = asyncio.Event()

    async def listen(self):
        inbound = socket.create_server(("127.0.0.1", 0))
        if "slow" in self.moods:
            inbound.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 16384)  # or all of the text would fit into it
        secure = self.context() if "smtps" in self.moods else None
        protocol = Mute if "mute" in self.moods else self.protocol
        self.listener = await asyncio.get_running_loop().create_server(protocol, sock=inbound, ssl=secure)
        return inbound.getsockname()[1]

    def protocol(self):
        secure = self.context() if "tls" in self.moods else None
        kind = Dropping if "drop" in self.moods else Slow if "slow" in self.moods else SMTP
        return kind(self, hostname="prueba", tls_context=secure, require_starttls=secure is not None,
                    auth_required="auth" in self.moods, auth_require_tls=False,
                    authenticator=authenticate if "auth" in self.moods else None,
                    data_size_limit=1_000_000 if "small" in self.moods else 50_000_000, timeout=3600)

    def context(self):
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(os.path.join(self.folder, "cert.pem"), os.path.join(self.folder, "key.pem"))
        return context

    async def handle_MAIL(self, server, session, envelope, address, options):
        if "sender" in self.moods:
            return "550 5.7.1 Sender not welcome"
        envelope.mail_from = address
        return "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, options):
        if "refuse" in self.moods and address.startswith("nadie"):
            return "550 5.1.1 No such user here"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if "reject" in self.moods:
            return "554 5.6.0 Message looks like spam"
        if "drop-after" in self.moods:
            server.transport.abort()
            await asyncio.Event().wait()
        if "silent" in self.moods:
            self.write("silent", "")
            await asyncio.Event().wait()
        self.count += 1
        with open(os.path.join(self.folder, f"{self.count}.eml"), "wb") as file:
            file.write(envelope.original_content)
        login = session.auth_data.login.decode() if session.auth_data else ""
        encrypted = server.transport.get_extra_info("ssl_object") is not None
        self.write(f"{self.count}.json", json.dumps({"from": envelope.mail_from, "to": envelope.rcpt_tos,
                                                     "tls": encrypted, "login": login}))
        return "250 2.0.0 Taken"

    async def handle_QUIT(self, server, session, envelope):
        if "rude" in self.moods:
            await asyncio.Event().wait()
        return "221 Bye"

    def write(self, name, text):
        """A file that is there whole or not at all."""
        path = os.path.join(self.folder, name)
        with open(path + ".part", "w", encoding="utf-8") as file:
            file.write(text)
        os.rename(path + ".part", path)


class Dropping(SMTP):
    """Ends the connection with the first bytes of the text."""

    async def smtp_DATA(self, arg):
        await self.push("354 Go ahead")
        await self._reader.read(20)
        self.transport.abort()


class Slow(SMTP):
    """Reads some lines of the text and waits."""

    async def smtp_DATA(self, arg):
        read, lines = self._reader.readuntil, 0

        async def slowly(*arguments):
            nonlocal lines
            lines += 1
            if lines > 1000:
                await self.event_handler.goes_on.wait()
            return await read(*arguments)

        self._reader.readuntil = slowly
        await super().smtp_DATA(arg)
        self._reader.readuntil = read


class Mute(asyncio.Protocol):
    """Says nothing."""


def authenticate(server, session, envelope, mechanism, data):
    good = isinstance(data, LoginPassword) and data.login == b"ana" and data.password == 'secreto ;"ñ'.encode()
    return AuthResult(success=good, handled=False, auth_data=data if good else None)


async def serve(folder, moods, reader, answer):
    server = Server(folder, moods)
    answer({"port": await server.listen()})
    while await reader.readline():
        server.goes_on.set()
    server.listener.close()


async def ask(reader, writer):
    def answer(what):
        writer.write(json.dumps(what).encode() + b"\n")

    try:
        wish = json.loads(await reader.readline())
        if "serve" in wish:
            await serve(wish["serve"], wish["moods"], reader, answer)
        else:
            answer([read_mail.read(path) for path in wish["read"]])
    finally:
        writer.close()  # without an answer the test sees that something failed


async def main():
    async with await asyncio.start_unix_server(ask, sys.argv[1]) as listener:
        await listener.serve_forever()


asyncio.run(main())
