"""One wheel per platform: the library inside needs no version of Python in particular."""
import glob

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel


class PlatformDistribution(Distribution):
    def has_ext_modules(self):
        return True


class PlatformWheel(bdist_wheel):
    def get_tag(self):
        is_for_windows = bool(glob.glob("tamur/*.dll"))
        return "py3", "none", "win_amd64" if is_for_windows else "linux_x86_64"


setup(distclass=PlatformDistribution, cmdclass={"bdist_wheel": PlatformWheel})
