#!/usr/bin/env python3
"""Writes made-up session logs below HOME, the same at each run, in the mix that real ones have."""

import argparse
import json
import pathlib
import random

WORDS = ("the file returns value error test build src/model/parser.cpp int const token usage "
         "assistant def import None self.assertEqual | grep -rn main 0x7ffe 12:04:55 ok").split()
UUID = "01a1fbce-13d5-7613-9454-34f63c7fb32f"


def prose(rng, size):
    """Text as tools print it: lines, quotes, some escape sequences and letters beyond ASCII."""
    parts = []
    length = 0
    while length < size:
        word = rng.choice(WORDS)
        chance = rng.random()
        if chance < 0.12:
            word += "\n    "
        elif chance < 0.15:
            word = f'"{word}"'
        elif chance < 0.16:
            word = f"\x1b[3{rng.randrange(8)}m{word}\x1b[0m"
        elif chance < 0.17:
            word += " — größer"
        parts.append(word)
        length += len(word) + 1
    return " ".join(parts)


def codex_line(kind, payload):
    return json.dumps({"timestamp": "2026-11-21T01:52:29.186Z", "ordinal": 7, "type": kind,
                       "payload": payload}, separators=(",", ":"), ensure_ascii=False)


def codex_log(rng, texts, size):
    """A session: 22 kB of instructions, then turns of tool output, messages and token counts."""
    yield codex_line("session_meta", {"id": UUID, "instructions": texts[0][:22000]})
    total, written = 0, 22000
    while written < size:
        text = rng.choice(texts)[:int(rng.paretovariate(1.1) * 900)]
        total += rng.randrange(100, 5000)
        usage = {"input_tokens": total - 50, "cached_input_tokens": 300, "output_tokens": 50,
                 "reasoning_output_tokens": 20, "total_tokens": total}
        lines = [
            codex_line("response_item",
                       {"type": "function_call", "name": "shell", "arguments": text[:300]}),
            codex_line("response_item",
                       {"type": "function_call_output", "call_id": UUID, "output": text}),
            codex_line("event_msg",
                       {"type": "item_completed", "thread_id": UUID, "text": text[:600]}),
            codex_line("token_usage_record", {"thread_id": UUID, "usage": usage}),
            codex_line("event_msg",
                       {"type": "token_count",
                        "info": {"total_token_usage": usage, "last_token_usage": usage,
                                 "model_context_window": 258400},
                        "rate_limits": {"limit_id": "codex", "primary": {"used_percent": 42.0}}}),
        ]
        yield from lines
        written += sum(map(len, lines))


def claude_line(kind, message, **more):
    return json.dumps({"parentUuid": UUID, "isSidechain": False, "message": message, "type": kind,
                       "uuid": UUID, "timestamp": "2026-11-21T01:42:09.855Z", "cwd": "/w/beta",
                       "sessionId": UUID, "version": "2.1.197", "gitBranch": "HEAD", **more},
                      separators=(",", ":"), ensure_ascii=False)


def claude_log(rng, texts, size):
    """A session: tool results, held twice as the program does, between the assistant's lines."""
    written = 0
    while written < size:
        text = rng.choice(texts)[:int(rng.paretovariate(1.1) * 900)]
        usage = {"input_tokens": rng.randrange(20), "output_tokens": rng.randrange(2000),
                 "cache_creation_input_tokens": 1266, "cache_read_input_tokens": 20600,
                 "service_tier": "standard"}
        content = [{"type": "text", "text": rng.choice(texts)[:rng.randrange(500, 2500)]}]
        call = [{"type": "tool_use", "id": "toolu_06", "name": "Bash",
                 "input": {"command": rng.choice(texts)[:rng.randrange(20, 1500)]}}]
        lines = [claude_line("assistant", {"id": "msg_06", "role": "assistant",
                                           "content": part, "usage": usage})
                 for part in (content, call)]
        lines.append(claude_line(
            "user", {"role": "user", "content": [{"type": "tool_result", "content": text}]},
            toolUseResult={"stdout": text, "stderr": "", "interrupted": False}))
        if rng.random() < 0.01:
            lines.append(claude_line("user", {"role": "user", "content": "half \ud83d"})
                         .replace("half \ud83d", "half \\ud83d"))
        yield from lines
        written += sum(map(len, lines))


def make_corpus(home, size, files=600):
    """About `size` bytes in `files` logs, half of them below either root."""
    rng = random.Random(7)
    texts = [prose(rng, 200_000) for _ in range(20)]
    for number in range(files):
        log, folder = ((codex_log, home / ".codex/sessions/2026/11/21"),
                       (claude_log, home / ".claude/projects/-w-beta"))[number % 2]
        folder.mkdir(parents=True, exist_ok=True)
        with open(folder / f"rollout-{number:04}.jsonl", "w", encoding="utf-8") as file:
            for line in log(rng, texts, size / files * rng.uniform(0.2, 1.8)):
                file.write(line + "\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("home", type=pathlib.Path)
    parser.add_argument("--size", type=float, default=1e9, help="in bytes")
    arguments = parser.parse_args()
    make_corpus(arguments.home, arguments.size)


if __name__ == "__main__":
    main()
