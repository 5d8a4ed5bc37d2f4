"""Says how full the program memory is, and fails when it is too full.

    check_hex.py HEX_FILE

The hex file holds one instruction of 18 bits a line, as five hexadecimal digits. Words of zero count as free.
"""

import sys

WORDS = 1024
LIMIT = 0.9  # share of the memory that a program may take


def main():
    path = sys.argv[1]
    with open(path) as hex_file:
        words = [int(line, 16) for line in hex_file]
    if len(words) != WORDS or max(words) >= 1 << 18:
        print(f"FAIL: {path} does not hold {WORDS} words of 18 bits.")
        return 1
    used = sum(word != 0 for word in words)
    share = used / WORDS
    print(f"{used} of {WORDS} words are used ({share:.1%}).")
    if share > LIMIT:
        print(f"FAIL: more than {LIMIT:.0%} of the memory.")
        return 1
    print("PASS")
    return 0


sys.exit(main())
