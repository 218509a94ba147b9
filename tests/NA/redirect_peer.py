#!/usr/bin/python3
"""An HTTP peer for the redirect tests, listening on 127.0.0.1 on two ports.

Prints both ports on one line ("PORT_A PORT_B") and exits when its standard
input closes, so it never outlives the test that started it. One request per
connection. The path picks the answer:
  /to/CODE/TARGET  status CODE with Location: TARGET (URL-decoded), body "moved"
  /headers         200 with what it received as the body: the request line,
                   every header line as it arrived, a blank line, the body
"""
import socket
import sys
import threading
import urllib.parse


def read_request(conn):
    data = b""
    while b"\r\n\r\n" not in data:
        chunk = conn.recv(65536)
        if not chunk:
            return None
        data += chunk
    head, _, body = data.partition(b"\r\n\r\n")
    length = 0
    for line in head.split(b"\r\n")[1:]:
        name, _, value = line.partition(b":")
        if name.strip().lower() == b"content-length":
            length = int(value.strip())
    while len(body) < length:
        chunk = conn.recv(65536)
        if not chunk:
            break
        body += chunk
    return head, body


def answer(conn):
    with conn:
        request = read_request(conn)
        if request is None:
            return
        head, body = request
        path = head.split(b"\r\n")[0].split(b" ")[1].decode()
        if path.startswith("/to/"):
            _, _, code, target = path.split("/", 3)
            status = code.encode() + b" Redirect"
            extra = b"Location: " + urllib.parse.unquote(target).encode() + b"\r\n"
            payload = b"moved"
        else:
            status, extra, payload = b"200 OK", b"", head + b"\r\n\r\n" + body
        conn.sendall(b"HTTP/1.1 " + status + b"\r\n" + extra + b"Content-Length: " +
                     str(len(payload)).encode() + b"\r\nConnection: close\r\n\r\n" + payload)


def serve(listener):
    while True:
        conn, _ = listener.accept()
        threading.Thread(target=answer, args=(conn,), daemon=True).start()


listeners = []
for _ in range(2):
    listener = socket.socket()
    listener.bind(("127.0.0.1", 0))
    listener.listen(16)
    listeners.append(listener)
    threading.Thread(target=serve, args=(listener,), daemon=True).start()
print(*[listener.getsockname()[1] for listener in listeners], flush=True)
sys.stdin.read()
