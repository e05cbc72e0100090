# -*- coding: utf-8 -*-
# MIT License (see LICENSE)
from __future__ import absolute_import, division, print_function

__metaclass__ = type

DOCUMENTATION = r"""
---
module: network_setting
short_description: Change the network settings of a label printer
description:
  - Hands settings to C(network-setting apply), which reads the printer, sends what differs in one
    transaction, reads again and compares.
  - It runs on the machine that the printer is plugged into over USB.
options:
  printer:
    description: Name, serial number or URI of the printer, as C(network-setting list) shows it.
    type: str
    required: true
  settings:
    description: Settings by their names, nested or with dots. Keys and passwords belong to I(secrets).
    type: dict
    default: {}
  secrets:
    description: Keys and passwords, in the same form. They are never logged.
    type: dict
    default: {}
  password:
    description: The administrator password that the printer has.
    type: str
  keys:
    description: When the key of a wireless network is sent, which no printer reports.
    type: str
    choices: [when-changed, always]
    default: when-changed
  program:
    description: The program to run.
    type: str
    default: network-setting
author:
  - Network Setting Tool developers
"""

EXAMPLES = r"""
- name: Give the printer its name and its network
  network_setting.tool.network_setting:
    printer: A2E0117
    settings:
      names: {printer: Packing-Desk}
      wireless: {mode: infrastructure, ssid: Office, authentication: wpa2, encryption: aes}
    secrets:
      wireless: {key: "{{ office_key }}"}
    password: "{{ printer_password }}"
"""

RETURN = r"""
outcome:
  description: What became of it (changed, unchanged, would-change, refused, not-reached, ...).
  type: str
  returned: always
changes:
  description: The settings that differ, each with name, old and new value; of a secret C(true).
  type: list
  elements: dict
  returned: always
warnings_of_printer:
  description: What can be sent, and may still not be what was meant.
  type: list
  elements: dict
  returned: always
"""

import json

from ansible.module_utils.basic import AnsibleModule


def parts_of(settings, prefix=""):
    """The names of the values in nested settings, with dots."""
    names = []
    for name, value in settings.items():
        if isinstance(value, dict):
            names += parts_of(value, prefix + name + ".")
        else:
            names.append(prefix + name)
    return names


def merged(below, above):
    """Nested settings, of which those of the second count."""
    result = dict(below)
    for name, value in above.items():
        both = isinstance(value, dict) and isinstance(result.get(name), dict)
        result[name] = merged(result[name], value) if both else value
    return result


def secret_names(module):
    """The names of the settings that are secrets, as the program knows them."""
    code, out, err = module.run_command([module.params["program"], "settings", "--json"])
    if code != 0:
        module.fail_json(msg=err.strip() or out.strip(), rc=code)
    return [setting["name"] for setting in json.loads(out) if setting["secret"]]


def main():
    module = AnsibleModule(
        argument_spec=dict(
            printer=dict(type="str", required=True),
            settings=dict(type="dict", default={}),
            secrets=dict(type="dict", default={}, no_log=True),
            password=dict(type="str", no_log=True),
            keys=dict(type="str", choices=["when-changed", "always"], default="when-changed", no_log=False),
            program=dict(type="str", default="network-setting"),
        ),
        supports_check_mode=True,
    )
    params = module.params
    misplaced = sorted(set(parts_of(params["settings"])) & set(secret_names(module)))
    if misplaced:
        module.fail_json(msg="These belong to 'secrets': " + ", ".join(misplaced))

    command = [params["program"], "apply", params["printer"], "-", "--json", "--keys", params["keys"]]
    command.append("--dry-run" if module.check_mode else "--yes")
    environment = {"NETWORK_SETTING_PASSWORD": params["password"] or ""}
    wanted = json.dumps(merged(params["settings"], params["secrets"]))
    code, out, err = module.run_command(command, data=wanted, environ_update=environment)
    try:
        result = json.loads(out.strip().splitlines()[-1])
    except (IndexError, ValueError):
        module.fail_json(msg=err.strip() or out.strip(), rc=code)

    changes = result["changes"]
    answer = dict(
        changed=result["outcome"] in ("changed", "would-change"),
        outcome=result["outcome"],
        changes=changes,
        warnings_of_printer=result["warnings"],
        result=result,
        diff=dict(
            before={change["name"]: change.get("old") for change in changes},
            after={change["name"]: change["new"] for change in changes},
        ),
    )
    if code != 0:
        faults = [fault["message"] for fault in result["faults"]]
        module.fail_json(msg=" ".join(faults) or result["message"], rc=code, **answer)
    module.exit_json(msg=result["message"], **answer)


if __name__ == "__main__":
    main()
