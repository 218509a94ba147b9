#!/usr/bin/python3
"""An HTTP peer for the retry tests on 127.0.0.1 that counts the requests per path.

Prints its port and exits when its standard input closes. One request per connection. A path
/KIND/N/KEY fails the first N requests to it, then answers 200 with the count as the body:
  503, 502, 504  that status with the body "busy"
  after          503 with "Retry-After: 1"
  drop           closes the connection without answering
"""
import collections
import socket
import sys
import threading

counts = collections.Counter()
lock = threading.Lock()


def answer(conn):
    with conn:
        data = b""
        while b"\r\n\r\n" not in data:
            chunk = conn.recv(65536)
            if not chunk:
                return
            data += chunk
        path = data.split(b" ", 2)[1].decode()
        kind, failures = (path.split("/") + ["", "", ""])[1:3]
        with lock:
            counts[path] += 1
            count = counts[path]
        if count <= int(failures or 0):
            if kind == "drop":
                return
            status = b"503 Busy\r\nRetry-After: 1" if kind == "after" else kind.encode() + b" Busy"
            payload = b"busy"
        else:
            status, payload = b"200 OK", str(count).encode()
        conn.sendall(b"HTTP/1.1 " + status + b"\r\nContent-Length: " + str(len(payload)).encode() +
                     b"\r\nConnection: close\r\n\r\n" + payload)


def serve(listener):
    while True:
        conn, _ = listener.accept()
        threading.Thread(target=answer, args=(conn,), daemon=True).start()


listener = socket.socket()
listener.bind(("127.0.0.1", 0))
listener.listen(16)
threading.Thread(target=serve, args=(listener,), daemon=True).start()
print(listener.getsockname()[1], flush=True)
sys.stdin.read()
