#!/usr/bin/env python3
"""validate_json.py SCHEMA FILE...: judges JSON documents by a JSON Schema, with a validator of others.

Prints what is wrong, a line each, and ends with 0 when nothing is, with 1 otherwise, with 2 when the schema is none.
What readers of JSON disagree about is wrong too: members that stand twice, and numbers that a double cannot hold.
"""
import json
import math
import sys

import jsonschema


def once(pairs):
    members = dict(pairs)
    if len(members) != len(pairs):
        raise ValueError("a member stands twice")
    return members


def finite(token):
    number = float(token)
    if not math.isfinite(number):
        raise ValueError(token + " is beyond the range of a double")
    return number


def refuse(token):
    raise ValueError(token + " is not JSON")


def read(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file, object_pairs_hook=once, parse_float=finite, parse_constant=refuse)


def faults(validator, path):
    try:
        document = read(path)
    except ValueError as error:
        return [str(error)]
    return [error.json_path + ": " + error.message[:200] for error in validator.iter_errors(document)]


def main(schema_path, paths):
    schema = read(schema_path)
    try:
        jsonschema.Draft202012Validator.check_schema(schema)
    except jsonschema.SchemaError as error:
        print(schema_path + ": " + error.message)
        return 2
    validator = jsonschema.Draft202012Validator(schema)
    status = 0
    for path in paths:
        for fault in faults(validator, path):
            print(path + ": " + fault)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2:]))
