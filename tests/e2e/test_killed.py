"""The launcher is killed: the next start leaves a complete client, whatever was half done."""

from sweep import Sweep, SweepCase
from upgrade import UpgradeCase

damage_executable = UpgradeCase.damage_executable
append_refused_entry = UpgradeCase.append_refused_entry


class Killed(SweepCase):
    def test_at_every_change_of_an_upgrade(self):
        self.run_sweep(Sweep("changes", "kill", first=1, step=3))

    def test_and_the_next_start_meets_a_damaged_package(self):
        self.run_sweep(Sweep("changes", "kill", first=2, step=3, next_damage=damage_executable))

    def test_at_every_change_of_a_first_installation(self):
        self.run_sweep(Sweep("changes", "kill", first=3, step=4, installed=None))

    def test_in_a_rollback(self):
        part = {"damage": damage_executable, "next_damage": damage_executable}
        self.run_sweep(Sweep("changes", "kill", first=4, step=4, **part))
        complete = {"damage": append_refused_entry}
        self.run_sweep(Sweep("rename,unlinkat", "kill", first=1, step=2, **complete))
