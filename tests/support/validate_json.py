#!/usr/bin/env python3
"""Validates JSON documents by JSON Schemas.

Reads one question per line, "SCHEMA<tab>FILE", until the input ends. Writes one line for each fault of the file, and an
empty line after the last fault. Fails if a schema is invalid. Members with the same name, and numbers that a double
cannot hold, are faults too, because readers of JSON treat them differently.
"""
import functools
import json
import math
import sys

import jsonschema


def unique(pairs):
    members = dict(pairs)
    if len(members) != len(pairs):
        raise ValueError("two members have the same name")
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
        return json.load(file, object_pairs_hook=unique, parse_float=finite, parse_constant=refuse)


@functools.lru_cache
def validator(schema_path):
    schema = read(schema_path)
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def faults(schema_path, path):
    try:
        document = read(path)
    except ValueError as error:
        return [str(error)]
    return [error.json_path + ": " + error.message[:200] for error in validator(schema_path).iter_errors(document)]


def main():
    for question in iter(sys.stdin.readline, ""):
        schema_path, path = question.rstrip("\n").split("\t")
        for fault in faults(schema_path, path):
            print(path + ": " + fault.replace("\n", " "))
        print(flush=True)


main()
