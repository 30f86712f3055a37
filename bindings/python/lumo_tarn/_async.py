"""Runs functions that wait, in threads of their own beside an event loop."""

from __future__ import annotations

import asyncio
import concurrent.futures
import threading
from typing import Callable, TypeVar

T = TypeVar("T")


async def in_thread(function: Callable[[], T]) -> T:
    """Returns the result of the function. If the coroutine is canceled, the function runs on and its result is lost.
    Unlike with an executor, functions do not wait for each other."""
    done: concurrent.futures.Future[T] = concurrent.futures.Future()
    done.set_running_or_notify_cancel()

    def run() -> None:
        try:
            done.set_result(function())
        except BaseException as error:
            done.set_exception(error)

    threading.Thread(target=run, daemon=True).start()
    return await asyncio.wrap_future(done)
