#!/usr/bin/python3
"""An HTTP peer for the upload tests, listening on 127.0.0.1 on a free port.

Prints "http://127.0.0.1:PORT" once it listens and exits when its standard
input closes. A POST or PUT is answered with a JSON object of what arrived:
"method", "type" (the media type), "json" (a JSON body), "fields" and "files"
(name, filename, type, size and sha256) of a multipart form, the empty ones
left out. GET /bad-json answers '{"a": 1,}'; POST /307 and /303 redirect to
/echo.
"""
import email.parser
import email.policy
import hashlib
import http.server
import json
import os
import sys
import threading


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def answer(self, status, body, location=None):
        self.send_response(status)
        if location:
            self.send_header("Location", location)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def do_GET(self):
        self.answer(200, b'{"a": 1,}' if self.path == "/bad-json" else b'{"method": "GET"}')

    def do_POST(self):
        body = self.rfile.read(int(self.headers.get("Content-Length", "0")))
        if self.path in ("/307", "/303"):
            return self.answer(int(self.path[1:]), b"", "/echo")
        kind = self.headers.get("Content-Type", "")
        seen = {"method": self.command, "type": kind.split(";")[0], "fields": {}, "files": []}
        if "json" in kind:
            seen["json"] = json.loads(body)
        elif kind.startswith("multipart/form-data"):
            form = email.parser.BytesParser(policy=email.policy.HTTP).parsebytes(
                b"Content-Type: " + kind.encode() + b"\r\n\r\n" + body)
            for part in form.iter_parts():
                name = part.get_param("name", header="content-disposition")
                data = part.get_payload(decode=True)
                if part.get_filename() is None:
                    seen["fields"][name] = data.decode()
                else:
                    seen["files"].append({"name": name, "filename": part.get_filename(),
                                          "type": part.get_content_type(), "size": len(data),
                                          "sha256": hashlib.sha256(data).hexdigest()})
        seen = {key: value for key, value in seen.items() if value}
        self.answer(200, json.dumps(seen).encode())

    do_PUT = do_POST

    def log_message(self, *args):
        pass


server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
server.daemon_threads = True
threading.Thread(target=server.serve_forever, daemon=True).start()
print(f"http://127.0.0.1:{server.server_address[1]}", flush=True)
sys.stdin.read()
os._exit(0)
