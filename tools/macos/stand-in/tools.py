#!/usr/bin/env python3
"""Stand-ins for the Mac's programs that make-installer runs, to try it on Linux.

Each is a link to this file. They write the formats that a Mac's write, as far as make-installer
decides them, except for Bom and signatures, and refuse options that the Mac's programs lack. STAND_IN_LOG
names a file that lists the calls. STAND_IN_FAILS names the program, or xcrun's subcommand, that fails.
Needs bsdtar.
"""
import argparse
import os
import plistlib
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

PROCESSORS = {7: 'i386', 0x01000007: 'x86_64', 0x0100000C: 'arm64'}


def options(program, names, words, flags=()):
    """The options' values; ends the program at one that the Mac's does not have."""
    parser = argparse.ArgumentParser(program, allow_abbrev=False)
    for name in names:
        parser.add_argument('--' + name)
    for flag in flags:
        parser.add_argument('--' + flag, action='store_true')
    parser.add_argument('result')
    return parser.parse_args(words)


def archive(folder, archive_format, result, *filters):
    subprocess.run(['bsdtar', '-c', '--format', archive_format, *filters, '--uid', '0', '--gid', '0',
                    '-f', os.path.abspath(result), *sorted(os.listdir(folder))], cwd=folder, check=True)


def defaults(words):
    verb, domain, key = words
    if verb != 'read':
        sys.exit('defaults: only read')
    with open(domain + '.plist', 'rb') as file:
        print(plistlib.load(file)[key])


def ditto(words):
    *_, source, target = words
    shutil.copytree(source, target, symlinks=True)


def lipo(words):
    """Reads the header of a Mach-O file, for one processor or several."""
    with open(words[1], 'rb') as file:
        data = file.read(4096)
    if data[:4] == b'\xca\xfe\xba\xbe':
        count = struct.unpack('>I', data[4:8])[0]
        kinds = [struct.unpack('>I', data[8 + 20 * i:12 + 20 * i])[0] for i in range(count)]
    elif data[:4] in (b'\xce\xfa\xed\xfe', b'\xcf\xfa\xed\xfe'):
        kinds = [struct.unpack('<I', data[4:8])[0]]
    else:
        sys.exit('lipo: not a Mach-O file')
    print(*[PROCESSORS[kind] for kind in kinds], end=' \n')


def pkgbuild(words):
    given = options('pkgbuild', ('root', 'component-plist', 'identifier', 'version', 'install-location',
                                 'ownership'), words)
    with open(given.component_plist, 'rb') as file:
        bundles = plistlib.load(file)
    for bundle in bundles:
        if not os.path.isdir(os.path.join(given.root, bundle['RootRelativeBundlePath'])):
            sys.exit('pkgbuild: no bundle ' + bundle['RootRelativeBundlePath'])
    with tempfile.TemporaryDirectory() as work:
        payload = os.path.join(work, 'Payload')
        subprocess.run(['bsdtar', '-c', '--format', 'odc', '--gzip', '--uid', '0', '--gid', '0',
                        '-f', payload, '.'], cwd=given.root, check=True)
        info = xml.Element('pkg-info', {
            'format-version': '2', 'identifier': given.identifier, 'version': given.version,
            'install-location': given.install_location, 'auth': 'root'})
        xml.ElementTree(info).write(os.path.join(work, 'PackageInfo'))
        archive(work, 'xar', given.result)


def productbuild(words):
    given = options('productbuild', ('distribution', 'resources', 'package-path', 'sign'), words,
                    ('timestamp',))
    script = xml.parse(given.distribution)
    with tempfile.TemporaryDirectory() as work:
        for reference in script.iter('pkg-ref'):
            if reference.text:
                component = os.path.join(work, reference.text)
                os.mkdir(component)
                subprocess.run(['bsdtar', '-x', '-f', os.path.join(given.package_path, reference.text),
                                '-C', component], check=True)
                reference.text = '#' + reference.text
        shutil.copytree(given.resources, os.path.join(work, 'Resources'))
        script.write(os.path.join(work, 'Distribution'), encoding='utf-8')
        archive(work, 'xar', given.result)


def xcrun(words):
    if words[:2] == ['notarytool', 'submit']:
        status = os.environ.get('STAND_IN_NOTARY', 'Accepted')
        print('{"id": "0f1e2d3c", "status": "%s", "message": "Processing complete"}' % status)


def main():
    name = os.path.basename(sys.argv[0])
    words = sys.argv[1:]
    if 'STAND_IN_LOG' in os.environ:
        with open(os.environ['STAND_IN_LOG'], 'a') as file:
            print(name, *words, file=file)
    if os.environ.get('STAND_IN_FAILS') in (name, *words[:1]):
        sys.exit(name + ': told to fail')
    # codesign, pkgutil and spctl have nothing to do.
    globals().get(name, lambda words: None)(words)


main()
