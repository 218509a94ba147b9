#!/usr/bin/python3
"""A peer for the header tests that keeps every header line it receives, byte for byte.

Listens on 127.0.0.1 and prints its port on the first line. For each request it
prints one line: the hex of every header line, separated by spaces, in the
order received. A head is cut into lines at CR LF, at a lone LF and at a lone
CR alike, so that a line break smuggled into a header shows up as a line of
its own. A request that asks for a web-socket upgrade is accepted (101) and
then held open until the client leaves; any other gets an empty 200. Exits
when its standard input closes.
"""
import asyncio
import base64
import hashlib
import os
import re
import sys

GUID = b"258EAFA5-E914-47DA-95CA-C5AB0DC85B11"


async def serve(reader, writer):
    try:
        head = await reader.readuntil(b"\r\n\r\n")
        lines = re.split(rb"\r\n|\n|\r", head[:-4])[1:]
        print(" ".join(line.hex() for line in lines), flush=True)
        key = next((line.split(b":", 1)[1].strip() for line in lines
                    if line.lower().startswith(b"sec-websocket-key:")), None)
        if key is None:
            writer.write(b"HTTP/1.1 200 OK\r\nContent-Length: 0\r\nConnection: close\r\n\r\n")
        else:
            accept = base64.b64encode(hashlib.sha1(key + GUID).digest())
            writer.write(b"HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                         b"Sec-WebSocket-Accept: " + accept + b"\r\n\r\n")
            await writer.drain()
            await reader.read()
        await writer.drain()
    except (OSError, asyncio.IncompleteReadError, asyncio.LimitOverrunError):
        pass  # the client may leave as soon as it has sent its request
    writer.close()


async def main():
    def on_stdin():
        if not sys.stdin.buffer.read1(4096):
            os._exit(0)

    asyncio.get_running_loop().add_reader(sys.stdin, on_stdin)
    server = await asyncio.start_server(serve, "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    await asyncio.Event().wait()


asyncio.run(main())
