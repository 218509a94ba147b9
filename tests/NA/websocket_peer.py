#!/usr/bin/python3
"""A web-socket peer for the tests, on python3-websockets, listening on 127.0.0.1.

Listens twice, in plain text and in TLS with a self-signed certificate for
127.0.0.1 that it makes with openssl, and prints both base URLs on one line
("ws://127.0.0.1:PORT wss://127.0.0.1:PORT"). Exits when its standard input
closes, so it never outlives the test that started it. The path of the request
picks what it does:
  /echo              sends every text message back
  /close/CODE/REASON closes at once with CODE and the URL-decoded REASON
  /frozen            says "frozen", then reads nothing more: no pong, no close
  /hang              never answers the opening handshake
"""
import asyncio
import os
import ssl
import subprocess
import sys
import tempfile
import urllib.parse

import websockets


async def forever():
    await asyncio.Event().wait()


async def process_request(path, headers):
    if path == "/hang":
        await forever()
    return None


async def handler(websocket):
    path = websocket.path
    if path.startswith("/close/"):
        _, _, code, reason = path.split("/", 3)
        await websocket.close(int(code), urllib.parse.unquote(reason))
    elif path == "/frozen":
        await websocket.send("frozen")
        websocket.transport.pause_reading()
        await forever()
    else:
        async for message in websocket:
            await websocket.send(message)


async def main():
    with tempfile.TemporaryDirectory() as keys:
        cert, key = os.path.join(keys, "cert.pem"), os.path.join(keys, "key.pem")
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                        "-nodes", "-days", "1", "-subj", "/CN=127.0.0.1", "-keyout", key, "-out", cert],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(cert, key)

    # Hanging and frozen connections would hold up a graceful shutdown: once the
    # test lets go, the peer just ends.
    def on_stdin():
        if not sys.stdin.buffer.read1(4096):
            os._exit(0)

    asyncio.get_running_loop().add_reader(sys.stdin, on_stdin)
    options = dict(process_request=process_request, ping_interval=None)
    async with websockets.serve(handler, "127.0.0.1", 0, **options) as plain, \
            websockets.serve(handler, "127.0.0.1", 0, ssl=context, **options) as secure:
        print(f"ws://127.0.0.1:{plain.sockets[0].getsockname()[1]}",
              f"wss://127.0.0.1:{secure.sockets[0].getsockname()[1]}", flush=True)
        await forever()


asyncio.run(main())
