# SPDX-License-Identifier: MIT
import json
import subprocess

listed = subprocess.run(["fuelgauge", "list", "--json"], stdout=subprocess.PIPE)
for name, reading in json.loads(listed.stdout).items():
    print(name, reading["value"] if reading["status"] == "Success" else reading["reason"])

watch = ["fuelgauge", "watch", "--json", "--interval", "60", "--count", "1"]
with subprocess.Popen(watch, stdout=subprocess.PIPE) as samples:
    for line in samples.stdout:
        print(json.loads(line)["VoltageNow"]["value"])
