#!/usr/bin/env python3
"""A measuring box in a few lines of Python, written from docs/protocol.md alone.

It shares no code with the program or its simulator, so that a mistake in how both read the protocol cannot hide. It
serves one client after the other until it is ended.

    box.py [--address 127.0.0.1] [--port 2222] [--period 100]

Port 0 takes any free port; the line "listening on ADDRESS PORT" on standard output says which.
"""

import argparse
import math
import select
import socket
import time

SENSORS = [
    ("Innendruck", "Pressure", 0, 600, "bar"),
    ("Massedruck", "Pressure", 0, 1200, "bar"),
    ("Massetemperatur", "Temperature", 0, 300, "°C"),
    ("Werkzeugtemperatur", "Temperature", 0, 120, "°C"),
    ("Werkzeugweg", "Distance", 0, 250, "mm"),
]
DEVICE = (
    '<deviceDescription hardwareVersion="1.0" firmwareVersion="py" numGroups="1"><group name="WZ" numChannels="5">'
    + '<channel min="0" max="10"/>' * 5
    + "</group></deviceDescription>"
)


def sensor_description():
    sensors = "".join(
        f'<sensor name="{name}" type="{kind}" min="{low}" max="{high}" unit="{unit}"/>'
        for name, kind, low, high, unit in SENSORS
    )
    return (
        '<sensorDescription numGroups="1"><group groupPos="0" name="WZ" numSensors="5">'
        f"{sensors}</group></sensorDescription>"
    )


def values_at(seconds):
    """A shot of six seconds: fill, hold, cool, open."""
    fill = 1 / (1 + math.exp(-12 * (seconds - 1.0)))
    decay = math.exp(-max(0.0, seconds - 2.5) / 1.2)
    opening = min(1.0, max(0.0, (seconds - 5.0) / 0.8))
    return (
        420 * fill * decay,
        950 * fill * decay + 15 * math.sin(9 * seconds),
        210 + 12 * fill * decay,
        48 + 9 * fill * math.exp(-seconds / 4),
        240 * opening,
    )


class Box:
    def __init__(self, client, period):
        self.client = client
        self.period = period  # ms
        self.buffer = b""
        self.counter = 0
        self.started = None  # time of the first sample of a run
        self.sent = 0  # samples of this run

    def say(self, text):
        self.client.sendall(text.encode() + b"\n")

    def sample(self, seconds):
        self.counter += 1
        self.say(f"{self.counter};" + ";".join(f"{value:.3f}" for value in values_at(seconds)))

    def handle(self, command):
        if command == "run=1":
            self.say("run=1")
            self.started, self.sent = time.monotonic(), 0
        elif command == "run=0":
            self.started = None
            self.say("run=0")
        elif command == "1":
            self.sample(0.0)
        elif command.startswith("t="):
            self.period = int(command[2:])
            self.say(command)
        elif command == "deviceDescription":
            self.say(DEVICE)
        elif command == "sensorDescription":
            self.say(sensor_description())
        elif command == "list":
            for line in ("list {", ".", "..", "messung", "} list"):
                self.say(line)

    def stream(self):
        """Sends the samples that are due; returns the seconds until the next one."""
        if self.started is None:
            return 1.0
        step = self.period / 1000
        while self.started + self.sent * step <= time.monotonic():
            self.sample(self.sent * step)
            self.sent += 1
        return max(0.0, self.started + self.sent * step - time.monotonic())

    def serve(self):
        while True:
            readable, _, _ = select.select([self.client], [], [], self.stream())
            if not readable:
                continue
            received = self.client.recv(4096)
            if not received:
                return
            self.buffer += received
            *lines, self.buffer = self.buffer.split(b"\n")
            for line in lines:
                self.handle(line.decode("ascii", "replace"))


def main():
    parser = argparse.ArgumentParser(description="A measuring box without hardware.")
    parser.add_argument("--address", default="127.0.0.1")
    parser.add_argument("--port", type=int, default=2222)
    parser.add_argument("--period", type=int, default=100, help="ms, until the client chooses another")
    arguments = parser.parse_args()
    with socket.create_server((arguments.address, arguments.port)) as server:
        address, port = server.getsockname()[:2]
        print(f"listening on {address} {port}", flush=True)
        while True:
            client, _ = server.accept()
            with client:
                try:
                    Box(client, arguments.period).serve()
                except OSError:
                    pass  # the client went away


if __name__ == "__main__":
    main()
