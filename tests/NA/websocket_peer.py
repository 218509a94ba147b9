#!/usr/bin/python3
"""A web-socket peer for the tests, on python3-websockets, listening on 127.0.0.1.

Listens in plain text, in TLS with a self-signed certificate for 127.0.0.1
that it makes with openssl, as a raw TCP peer that upgrades any request, says
"hello" and drops the connection without a close frame, and in plain text on a
port that the lines "stop" (drop its connections, stop listening) and "start"
on its standard input turn off and on, answered "stopped" and "started".
Prints the four base URLs on one line. Exits when its standard input closes,
so it never outlives the test that started it. The path picks what it does:
  /echo              sends every text and binary message back
  /close/CODE/REASON closes at once with CODE and the URL-decoded REASON
  /close             closes at once with a close frame that carries no code
  /frozen            says "frozen", then reads nothing more: no pong, no close
  /flood             sends "more" for as long as the connection lasts
  /hang              never answers the opening handshake
  /refuse            refuses the opening handshake with 403
"""
import asyncio
import base64
import hashlib
import os
import re
import ssl
import subprocess
import sys
import tempfile
import urllib.parse

import websockets
from websockets.frames import Close


async def forever():
    await asyncio.Event().wait()


async def process_request(path, headers):
    if path == "/hang":
        await forever()
    if path == "/refuse":
        return 403, [], b""
    return None


async def drop(reader, writer):
    request = await reader.readuntil(b"\r\n\r\n")
    key = re.search(rb"Sec-WebSocket-Key: *(\S+)", request, re.I).group(1)
    accept = base64.b64encode(hashlib.sha1(key + b"258EAFA5-E914-47DA-95CA-C5AB0DC85B11").digest())
    writer.write(b"HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                 b"Sec-WebSocket-Accept: " + accept + b"\r\n\r\n\x81\x05hello")
    await writer.drain()
    writer.close()


async def handler(websocket):
    path = websocket.path
    if path.startswith("/close/"):
        _, _, code, reason = path.split("/", 3)
        await websocket.close(int(code), urllib.parse.unquote(reason))
    elif path == "/close":
        await websocket.write_close_frame(Close(1000, ""), b"")
        await websocket.wait_closed()
    elif path == "/flood":
        while True:
            await websocket.send("more")
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
    options = dict(process_request=process_request, ping_interval=None)
    restartable = {"server": None, "port": 0}

    async def command(line, announce=True):
        if line == "stop" and restartable["server"]:
            for connection in list(restartable["server"].websockets):
                connection.transport.abort()
            restartable["server"].close()
            await restartable["server"].wait_closed()
            restartable["server"] = None
            print("stopped", flush=True)
        elif line == "start" and not restartable["server"]:
            restartable["server"] = await websockets.serve(handler, "127.0.0.1", restartable["port"], **options)
            restartable["port"] = restartable["server"].sockets[0].getsockname()[1]
            if announce:
                print("started", flush=True)

    # One command at a time: the test waits for each answer.
    def on_stdin():
        line = sys.stdin.buffer.readline()
        if not line:
            os._exit(0)
        asyncio.ensure_future(command(line.decode().strip()))

    asyncio.get_running_loop().add_reader(sys.stdin, on_stdin)
    await command("start", announce=False)
    async with websockets.serve(handler, "127.0.0.1", 0, **options) as plain, \
            websockets.serve(handler, "127.0.0.1", 0, ssl=context, **options) as secure:
        raw = await asyncio.start_server(drop, "127.0.0.1", 0)
        print(f"ws://127.0.0.1:{plain.sockets[0].getsockname()[1]}",
              f"wss://127.0.0.1:{secure.sockets[0].getsockname()[1]}",
              f"ws://127.0.0.1:{raw.sockets[0].getsockname()[1]}",
              f"ws://127.0.0.1:{restartable['port']}", flush=True)
        await forever()


asyncio.run(main())
