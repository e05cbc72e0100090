# -*- coding: utf-8 -*-
# MIT License (see LICENSE)
from __future__ import absolute_import, division, print_function

__metaclass__ = type

DOCUMENTATION = r"""
---
module: network_setting_info
short_description: Read the network settings of a label printer, or list the printers
description:
  - Runs C(network-setting show) for a printer, or C(network-setting list) without one.
options:
  printer:
    description: Name, serial number or URI of the printer; without it, all printers are listed.
    type: str
  program:
    description: The program to run.
    type: str
    default: network-setting
author:
  - Network Setting Tool developers
"""

EXAMPLES = r"""
- name: Keep what the printer has
  network_setting.tool.network_setting_info:
    printer: A2E0117
  register: packing_desk
"""

RETURN = r"""
settings:
  description: The settings of the printer without secrets.
  type: dict
  returned: with a printer
printers:
  description: What the list knows of each printer.
  type: list
  elements: dict
  returned: without a printer
"""

import json

from ansible.module_utils.basic import AnsibleModule


def main():
    module = AnsibleModule(
        argument_spec=dict(
            printer=dict(type="str"),
            program=dict(type="str", default="network-setting"),
        ),
        supports_check_mode=True,
    )
    printer = module.params["printer"]
    asked = ["show", printer] if printer else ["list"]
    code, out, err = module.run_command([module.params["program"]] + asked + ["--json"])
    if code != 0:
        module.fail_json(msg=err.strip(), rc=code)
    module.exit_json(changed=False, **{"settings" if printer else "printers": json.loads(out)})


if __name__ == "__main__":
    main()
