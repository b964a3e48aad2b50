#!/usr/bin/env python3
"""Writes the named seeds of the fuzzers into corpus/: small artwork blobs and files, preset documents, command
lines with documents, and presets of other programs, well formed and damaged. Seeds without a name are what a run of the fuzzers found worth keeping.

The files' groups lie right behind their tables, within the head, so that the seeds stay small."""
import json
import pathlib
import struct

CORPUS = pathlib.Path(__file__).parent / "corpus"


def picture(data, form=1):
    return b"IMG:" + struct.pack("<i", form) + data


def blob(*pictures, count=None):
    data = b"IG\0" + struct.pack("<i", len(pictures) if count is None else count)
    for key, content in pictures:
        data += struct.pack("<iI", key, len(content)) + content
    return data


def artwork(*groups, count=None):
    offset = 15 + 32 * len(groups)
    head = b"ZQAW2023CC\0" + struct.pack("<i", len(groups) if count is None else count)
    for face_id, data in groups:
        head += struct.pack("<iIQI12x", face_id, 0, offset, len(data))
        offset += len(data)
    return head + b"".join(data for _, data in groups)


TWO = blob((0, picture(b"red")), (12, picture(b"blue", 4)))
GROUPS = {
    "empty": blob(),
    "two_pictures": TWO,
    "repeated_key": blob((1, picture(b"a")), (1, picture(b"b"))),
    "foreign_picture": blob((0, b"\x89PNG"), (-1, b"")),
    "lying_count": blob((0, picture(b"a")), count=0x7FFFFFFF),
    "lying_length": TWO[:11] + b"\xff\xff\xff\xff" + TWO[15:],
    "other_flag": b"IX" + TWO[2:],
}
FILES = {
    "no_groups": artwork(),
    "two_groups": artwork((20000000, TWO), (10000000, blob())),
    "repeated_identifier": artwork((5, TWO), (5, blob())),
    "lying_count": artwork((5, TWO), count=0x7FFFFFFF),
    "beyond_2_63": artwork((5, TWO))[:23] + b"\xff" * 12 + artwork((5, TWO))[35:],
    "cut_table": artwork((5, TWO), (6, TWO))[:60],
    "other_magic": b"ZQAW2024CC\0" + artwork((5, TWO))[11:],
}


def codec(**members):
    return {"codecID": 1, **members}


def container(**members):
    return {"name": "Any", "formatName": "MP4", **members}


def document(*presets, children=()):
    return json.dumps({"name": "Presets", "faceID": 7, "formatPresetList": presets, "childList": children}).encode()


VIDEO = codec(aspectPreset={"num": 4, "den": 3, "type": 13}, indexForResolutionPreset=1,
              resolutionPresets=[{"width": 0, "height": 0}, {"width": 1280, "height": 720}],
              frameratePresets=[{"num": 30000, "den": 1001}], profilesPresets=[{"profile": 100, "name": "High"}],
              levelPresets=[{"level": -99, "name": "Unknown"}, {"level": 31, "name": "3.1"}], indexForSampleFmts=1)
AUDIO = codec(codecID=1001, sampleratePresets=[{"samplerate": 48000}], channelLayoutPresets=[{"chLayout": 3}])
FULL = container(indexForVideoCodecPresets=1, videoCodecPresets=[{"codecID": 0}, VIDEO], audioCodecPresets=[AUDIO],
                 maxWidth=640, maxHeight=480, maxVideoBitrate=8000000, minAudioBitrate=-1)
PHONES = {"name": "Pho/nes", "formatPresetList": [container(name="Small")]}
DOCUMENTS = {
    "nothing": b"{}",
    "null": b"null",
    "two_levels": document(FULL, children=[PHONES, {"childList": [{}, {}]}]),
    "old_names": document({"formatName": "MPEG1"}, {"formatName": "MPEG2", "videoCodecPresets": [{}]}),
    "levels_without_unknown": document(container(videoCodecPresets=[
        codec(indexForLevelPresets=2147483647, levelPresets=[{"level": 31}])])),
    "numbers_out_of_range": document(container(maxWidth=1e300, minWidth=-2**63, faceID=2**64, audioCodecPresets=[
        codec(channelLayoutPresets=[{"chLayout": 2**64 - 1}, {"chLayout": -2**63}, {"chLayout": 0.5}])])),
    "other_kinds": b'{"name":1,"formatPresetList":{"a":[]},"childList":[1,"b",[null],{"name":{},"faceID":"x"}]}',
    "repeated_member": b'{"name":"a","name":"b","childList":[],"childList":[{}]}',
    "escapes": '{"name":"\\ud83c\\udfac\\u0000\\n\u00e9"}'.encode(),
    "deep": b'{"childList":[' * 40 + b"{}" + b"]}" * 40,
    "as_deep_as_can_be": b'{"childList":[' * 509 + b'{"formatPresetList":[{"videoCodecPresets":[{}]}]}' + b"]}" * 509,
    "cut": document(FULL)[:-200],
}


SAMPLES = pathlib.Path(__file__).parent.parent / "tests" / "data" / "import"
TARGET = b"[GStreamer Encoding Target]\nname=x\n[profile-a]\nname=a\n"
STREAM = b"[streamprofile-b]\nparent=a\ntype=video\n"
IMPORTS = {
    "handbrake": (SAMPLES / "handbrake.json").read_bytes(),
    "camera": (SAMPLES / "camera.gep").read_bytes(),
    "list_of_presets": b'[{"PresetName":"A","FileFormat":"mkv","VideoEncoder":"x264","AudioList":[{"AudioEncoder":"copy"}]}]',
    "folders": b'{"PresetList":[' + b'{"Folder":true,"ChildrenArray":[' * 20 + b'{"FileFormat":"mp4"}' + b"]}" * 20 + b"]}",
    "numbers": b'[{"FileFormat":"mp4","VideoEncoder":"VP9","VideoQualitySlider":1e300,"VideoFramerate":-1,'
               b'"PictureWidth":99999999999,"PictureHeight":1e-9,"AudioList":[{"AudioEncoder":"mp3","AudioBitrate":1e9}]}]',
    "empty_range": TARGET + b"format=video/x-matroska\n" + STREAM +
                   b"format=video/x-h264\nrestriction=video/x-raw,width=[9,2],height=[2,9,1]\n",
    "quoted_caps": TARGET + b'format=video/quicktime, variant="iso"\n' + STREAM + b'format=video/x-h264,profile=(string){"hi\\"gh",main}\n',
    "broken_caps": TARGET + b"format=video/webm, =,{[\n",
    "no_target": b"[Other]\nkey\\s=\\n\n",
}


def command_line(*arguments, text=document(FULL, container(name="a"), children=[PHONES])):
    return "\n".join(arguments).encode() + b"\0" + text


COMMAND_LINES = {
    "tree": command_line("tree"),
    "tree_json": command_line("tree", "--json", "--document", "x"),
    "paths": command_line("tree", "--paths"),
    "show": command_line("show", "Any"),
    "show_escaped": command_line("--json", "show", "Pho\\/nes/Small"),
    "unknown_preset": command_line("show", "Smal1"),
    "nothing_told": command_line(),
    "help": command_line("--help"),
    "manual": command_line("generate", "man"),
    "wrong_command": command_line("tre", "--json"),
    "picture": command_line("artwork", "add", "f", "--picture", "0:normal=x", "--picture", "1:normal=y"),
    "match": command_line("match", "film.mov", "--preset", "Any"),
    "match_ffmpeg": command_line("match", "film.mkv", "--preset", "Any", "--ffmpeg", "out.mp4", "--crop"),
    "match_all": command_line("match", "music.opus", "--all", "--json"),
    "match_nothing": command_line("match", "a.mov", "--preset", "Any", text=b""),
    "size": command_line("size", "film.mp4", "--preset", "Any", "--target", "25MB"),
    "size_json": command_line("size", "film.webm", "--json", "--preset", "Any", "--target", "1.5 KiB"),
    "convert": command_line("convert", "film.mkv", "out.mp4", "--preset", "Any", "--dry-run", "--stretch"),
    "codecs": command_line("codecs", "h26"),
    "codecs_json": command_line("codecs", "--json", "AAC"),
    "formats": command_line("formats", "--json"),
    "check": command_line("check", "a.json", "--json"),
    "check_faults": command_line("check", "a.json", text=DOCUMENTS["other_kinds"]),
    "edit_category": command_line("edit", "add", "a.json", "New/Sub", "--category", "--parents", "--first", "face=20000001"),
    "edit_container": command_line("edit", "add", "a.json", "Pho\\/nes/Clip", "--container", "MP4", "--json", "video-codec=H.264",
                                   "resolution=640x360", "--before", "Small"),
    "edit_copy": command_line("edit", "add", "a.json", "Copy", "--from", "Any", "--from-document", "a.json", "--backup"),
    "edit_remove": command_line("edit", "remove", "a.json", "a", "Pho\\/nes", "--recursive"),
    "edit_move": command_line("edit", "move", "a.json", "a", "--into", "Pho\\/nes", "--after", "Small"),
    "edit_rename": command_line("edit", "rename", "a.json", "/childList/0", "Tele/phones"),
    "edit_clone": command_line("edit", "clone", "a.json", "Any", "--name", "Mine", "frame-rate=30000/1001"),
    "edit_set": command_line("edit", "set", "a.json", "Any", "max-size=1280x720", "video-bitrate=4M", "description=x"),
    "edit_nothing": command_line("edit", "set", "a.json", "Any", "no=thing", text=DOCUMENTS["cut"]),
    "import": command_line("import", "a.json", "--json", text=IMPORTS["handbrake"]),
    "import_into": command_line("import", "a.gep", "--into", "b.json", "--backup", text=IMPORTS["camera"]),
    "import_output": command_line("import", "a.json", "--output", "b.json", text=IMPORTS["list_of_presets"]),
    "broken_document": command_line("tree", text=b'{"childList":['),
    "same_path_twice": command_line("show", "a", text=document(container(name="a"), container(name="a"))),
}
for target, seeds in (("artwork_group", GROUPS), ("artwork_file", FILES), ("document", DOCUMENTS),
                      ("arguments", COMMAND_LINES), ("import", IMPORTS)):
    (CORPUS / target).mkdir(parents=True, exist_ok=True)
    for name, data in seeds.items():
        (CORPUS / target / name).write_bytes(data)
