"""Requests a bundle from many processes at the same time: ask_many.py BUNDLE ADDRESS...

Prints for each address the number of messages in its answer, or the error; the exit code is then 1.
"""

import asyncio
import sys

import lumo_tarn

if len(sys.argv) < 3:
    sys.exit(__doc__)
bundle, *addresses = sys.argv[1:]


async def ask(address):
    try:
        return len(await lumo_tarn.ask_async(address, bundle, timeout=5.0)), None
    except OSError as error:
        return 0, error


async def main():
    answers = await asyncio.gather(*(ask(address) for address in addresses))
    for address, (messages, error) in zip(addresses, answers):
        print(f"{address}: {error or messages}")
    return 1 if any(error for _, error in answers) else 0


sys.exit(asyncio.run(main()))
