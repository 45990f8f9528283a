"""Mail servers of every temper for tests, each on a port of its own.

Prints "port NAME NUMBER" for each and "ready"; then, for each message that one of them got, what a mail reader
makes of it, as one line of JSON. The argument is a folder with cert.pem and key.pem, and other-*.pem of a
certificate for another name. Ends when its standard input does.
"""
import asyncio
import email
import email.policy
import json
import logging
import ssl
import sys
import warnings
from concurrent.futures import ThreadPoolExecutor

from aiosmtpd.smtp import SMTP, AuthResult

HERE, ELSEWHERE = "127.0.0.1", "127.0.0.2"  # both are this machine, but only the first is known to be
printer = ThreadPoolExecutor(1)  # the reader may be waiting for the server
logging.disable()
warnings.simplefilter("ignore")


class Handler:
    def __init__(self, name):
        self.name = name

    async def handle_MAIL(self, server, session, envelope, address, options):
        if self.name == "hostile":
            return "550 <b>pare</b> \x07\u202ea senha segredo-7 ç \t" + "x" * 400
        envelope.mail_from = address
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if self.name == "drop":
            server.transport.abort()
        if self.name in ("hang", "drop"):
            await asyncio.sleep(3600)
        message = email.message_from_bytes(envelope.content, policy=email.policy.default)
        parts = [part for part in message.walk() if not part.is_multipart()]
        told = json.dumps({
            "server": self.name,
            "tls": server.transport.get_extra_info("sslcontext") is not None,
            "login": session.auth_data or "",
            "envelope": envelope.mail_from + " " + " ".join(envelope.rcpt_tos),
            "headers": {name: str(message[name]) for name in message.keys()},
            "raw": envelope.content.decode("latin-1"),
            "defects": [str(d) for part in message.walk() for d in part.defects],
            "types": [part.get_content_type() + " " + str(part.get_content_charset()) for part in parts],
            "file": str([part.get_filename() for part in parts]),
            "html": parts[0].get_content(),
            "attachment": parts[-1].get_payload(decode=True).decode("latin-1"),
        })
        printer.submit(print, told, flush=True)
        return "250 OK"


def authenticate(server, session, envelope, mechanism, data):
    name, password = data.login.decode(), data.password.decode()
    good = password == "segredo-7 ç"
    return AuthResult(success=good, handled=False, auth_data=name if good else None)


async def silent(reader, writer):
    await asyncio.sleep(3600)


async def flood(reader, writer):
    while True:
        writer.write(b"220-" + b"a" * 500 + b"\r\n")
        await writer.drain()


def context(certificate):
    made = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    made.load_cert_chain(f"{sys.argv[1]}/{certificate}cert.pem", f"{sys.argv[1]}/{certificate}key.pem")
    return made


def protocol(name, tls=None):
    return lambda: SMTP(Handler(name), tls_context=tls, auth_require_tls=False, authenticator=authenticate,
                        auth_required=name == "login", hostname="localhost", enable_SMTPUTF8=True)


async def main():
    loop = asyncio.get_running_loop()
    loop.set_exception_handler(lambda *_: None)  # clients that go away
    own = context("")
    # name: address, what STARTTLS offers, TLS from the start
    kinds = {"login": (ELSEWHERE, own, None), "tls": (HERE, None, own), "plain": (HERE, None, None),
             "notls": (ELSEWHERE, None, None), "other": (ELSEWHERE, context("other-"), None),
             "hostile": (HERE, None, None), "hang": (HERE, None, None), "drop": (HERE, None, None)}
    for name, (address, later, first) in kinds.items():
        server = await loop.create_server(protocol(name, later), address, 0, ssl=first)
        print("port", name, server.sockets[0].getsockname()[1], flush=True)
    for handler in (silent, flood):
        server = await asyncio.start_server(handler, HERE, 0)
        print("port", handler.__name__, server.sockets[0].getsockname()[1], flush=True)
    print("ready", flush=True)
    await loop.run_in_executor(None, sys.stdin.read)

asyncio.run(main())
