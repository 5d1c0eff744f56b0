#!/usr/bin/env python3
"""Writes the sample site under samples/site: the site description (site.json), one server document per
alarm rule (rules/<id>.xml) and a few short alarm sounds (sounds/*.mp3).

The files are committed; run this again only to change the site:  python3 samples/tools/make_site.py
"""
import json
import os
import shutil
import urllib.parse

HERE = os.path.dirname(os.path.abspath(__file__))
SITE = os.path.join(HERE, "..", "site")

STATIONS = [
    ("10.20.0.11", "Recorder A (Warehouse)"),
    ("10.20.0.12", "Recorder B (Yard)"),
    ("10.20.0.13", "Recorder C (Offices)"),
    ("10.20.0.14", "Mobile NVR Truck 7"),
]

# id, name, station, DI names, DO names
CAMERAS = [
    ("cam-01", "Main gate entry", "10.20.0.12", ["Gate contact", "Intercom call"], ["Gate lock", "Gate beacon"]),
    ("cam-02", "Main gate exit", "10.20.0.12", ["Exit loop"], ["Barrier"]),
    ("cam-03", "Gatehouse", "10.20.0.12", ["Panic button"], ["Gatehouse siren"]),
    ("cam-04", "Truck scale", "10.20.0.12", [], []),
    ("cam-05", "Yard north", "10.20.0.12", [], ["Floodlight north"]),
    ("cam-06", "Yard south", "10.20.0.12", [], ["Floodlight south"]),
    ("cam-07", "Container stack east", "10.20.0.12", [], []),
    ("cam-08", "Container stack west", "10.20.0.12", [], []),
    ("cam-09", "Fuel station", "10.20.0.12", ["Pump alarm"], ["Pump cut-off"]),
    ("cam-10", "North fence", "10.20.0.12", ["Fence sensor 1", "Fence sensor 2"], []),
    ("cam-11", "East fence", "10.20.0.12", ["Fence sensor 3"], []),
    ("cam-12", "Rail siding", "10.20.0.12", [], []),
    ("cam-13", "Dock 1", "10.20.0.11", ["Dock door 1"], ["Dock light 1"]),
    ("cam-14", "Dock 2", "10.20.0.11", ["Dock door 2"], ["Dock light 2"]),
    ("cam-15", "Dock 3", "10.20.0.11", ["Dock door 3"], ["Dock light 3"]),
    ("cam-16", "Dock 4", "10.20.0.11", ["Dock door 4"], ["Dock light 4"]),
    ("cam-17", "Aisle A", "10.20.0.11", [], []),
    ("cam-18", "Aisle B", "10.20.0.11", [], []),
    ("cam-19", "Aisle C", "10.20.0.11", [], []),
    ("cam-20", "High-value cage", "10.20.0.11", ["Cage door", "Cage motion"], ["Cage strobe"]),
    ("cam-21", "Cold store", "10.20.0.11", ["Cold store door"], []),
    ("cam-22", "Battery charging room", "10.20.0.11", ["Smoke detector"], ["Ventilation"]),
    ("cam-23", "Forklift parking", "10.20.0.11", [], []),
    ("cam-24", "Returns area", "10.20.0.11", [], []),
    ("cam-25", "Packing line 1", "10.20.0.11", [], []),
    ("cam-26", "Packing line 2", "10.20.0.11", [], []),
    ("cam-27", "Roof access", "10.20.0.11", ["Hatch contact"], []),
    ("cam-28", "Server room", "10.20.0.13", ["Server room door", "Water sensor"], ["Server room lock"]),
    ("cam-29", "Reception", "10.20.0.13", ["Reception panic"], ["Reception door"]),
    ("cam-30", "Lobby", "10.20.0.13", [], []),
    ("cam-31", "Staff entrance", "10.20.0.13", ["Staff door"], ["Staff door lock"]),
    ("cam-32", "Canteen", "10.20.0.13", [], []),
    ("cam-33", "Car park level 0", "10.20.0.13", [], []),
    ("cam-34", "Car park level 1", "10.20.0.13", [], []),
    ("cam-35", "Bicycle shed", "10.20.0.13", [], []),
    ("cam-36", "Cash office", "10.20.0.13", ["Safe contact", "Hold-up button"], ["Cash office lock"]),
    ("cam-37", "Stairwell east", "10.20.0.13", [], []),
    ("cam-38", "Thermal perimeter", "10.20.0.12", [], []),
    ("cam-39", "Truck 7 cab", "10.20.0.14", ["Door open"], []),
    ("cam-40", "Truck 7 cargo", "10.20.0.14", ["Cargo door"], ["Cargo light"]),
]

IO_DEVICES = [
    ("io-01", "Warehouse I/O box", ["Fire panel", "Sprinkler flow", "Dock 5 door", "Dock 6 door"],
     ["Warehouse beacon", "Warehouse horn"]),
    ("io-02", "Gatehouse I/O box", ["Barrier fault", "Vehicle detector"], ["Traffic light red", "Traffic light green"]),
]

ROLES = [(1, "Security operators"), (2, "Shift supervisors"), (3, "Facility managers"), (4, "IT administrators")]
AUDIO_DEVICES = [(1, "Yard speaker"), (2, "Lobby speaker"), (3, "Warehouse speaker")]
AUDIO_FILES = [(11, "evacuation_message.wav"), (12, "leave_the_area.wav"), (13, "door_left_open.wav")]
MAPS = [("M{202EE83D-9667-42AD-AED9-5A4C240193FA}", "OpenStreetMap"), ("M12", "Site plan"), ("M13", "Warehouse floor")]
SOUNDS = ["siren.mp3", "chime.mp3", "klaxon.mp3", "doorbell.mp3", "evacuation.mp3"]

# Schedules as the rule editor draws them: rectangles of whole days (Left+1 .. Right) and hours (Top .. Bottom).
SCHEDULES = {
    "All day": [(0, 7, 0, 24)],
    "Office hours": [(0, 5, 8, 18)],
    "Night shift": [(0, 7, 18, 24), (0, 7, 0, 6)],
    "Weekend": [(5, 7, 0, 24)],
    "Weekday nights": [(0, 5, 20, 24)],
}

CAMERA_NAMES = {c[0]: c[1] for c in CAMERAS}


def enc(text):
    return urllib.parse.quote(text, safe="")


def latency(seconds):
    return "<Rule><Latency>%d</Latency></Rule>" % seconds


# --- triggers -------------------------------------------------------------------------------------------

def cam(cam_id, event, sub="", lat=0):
    return "<CamEventTrigger><CamName>%s</CamName><EventType>%s</EventType>%s%s</CamEventTrigger>" % (
        cam_id, event, latency(lat), sub)


def cam_di(cam_id, index, value="High", lat=0):
    return cam(cam_id, "DI", "<DI><Index>%d</Index><Value>%s</Value></DI>" % (index, value), lat)


def cam_do(cam_id, index, value="High", lat=0):
    return cam(cam_id, "DO", "<DO><Index>%d</Index><Value>%s</Value></DO>" % (index, value), lat)


def motion(cam_id, window=1, lat=0):
    return cam(cam_id, "Motion", "<Motion><Index>%d</Index></Motion>" % window, lat)


def video_loss(cam_id, kind=0):
    return cam(cam_id, "VideoLossRestore", "<VLR><Type>%d</Type></VLR>" % kind)


def vca(cam_id, kind, rule_name, lat=0):
    return cam(cam_id, "VCA", "<VCA><Type>%s</Type><RuleName>%s</RuleName></VCA>" % (kind, rule_name), lat)


def thermal(cam_id, kind, area):
    return cam(cam_id, "Thermal",
               "<Thermal><Type>%s</Type><TemperatureInfo><AreaId>%d</AreaId></TemperatureInfo></Thermal>" % (kind, area))


def guardian(cam_id, list_id, list_name):
    return cam(cam_id, "Guardian", "<Guardian><Id>%d</Id><Name>%s</Name></Guardian>" % (list_id, list_name))


def status(event, body, lat=0):
    return "<StatusEventTrigger><EventType>%s</EventType>%s%s</StatusEventTrigger>" % (event, latency(lat), body)


def cam_status(event, cam_id, state, lat=0):
    return status(event, "<%s><CamName>%s</CamName><State>%s</State></%s>" % (event, cam_id, state, event), lat)


def station_status(event, station, state, element=None, lat=0):
    element = element or event
    return status(event, "<%s><StationAddress>%s</StationAddress><State>%s</State></%s>" % (
        element, station, state, element), lat)


def dio_status(station, io, index, value, ref):
    return status("DIOStatus", "<DIOStatus><DeviceName>%s</DeviceName><EventType>%s</EventType><Index>%d</Index>"
                  "<Value>%s</Value><RefName>%s</RefName><ioIndex>%d</ioIndex></DIOStatus>" % (
                      station, io, index, value, ref, index))


def gsensor(event, station, kind):
    return status(event, "<%s><StationAddress>%s</StationAddress><Type>%s</Type></%s>" % (event, station, kind, event))


def attack(event, station):
    return status(event, "<%s><StationAddress>%s</StationAddress></%s>" % (event, station, event))


def system(event, body, lat=0):
    return "<SysEventTrigger><EventType>%s</EventType>%s%s</SysEventTrigger>" % (event, latency(lat), body)


def sys_station(event, station, state):
    return system(event, "<%s><StationAddress>%s</StationAddress><State>%s</State></%s>" % (event, station, state, event))


def area_report(station, area, remaining, comparison):
    return system("SysVcaAreaReport",
                  "<StationAddress>%s</StationAddress><VcaAreaReport><AreaId>%d</AreaId><RemainingPeople>%d"
                  "</RemainingPeople><Comparison>%s</Comparison></VcaAreaReport>" % (station, area, remaining, comparison))


def ext(event, body):
    return "<ExtDeviceEventTrigger><EventType>%s</EventType>%s</ExtDeviceEventTrigger>" % (event, body)


def ext_io(device, io, index, value="High", lat=0):
    return ext("ExtIODevice", "<ExtIODevice><DeviceName>%s</DeviceName><EventType>%s</EventType>%s<Index>%d</Index>"
               "<Value>%s</Value></ExtIODevice>" % (device, io, latency(lat), index, value))


def tcp(station, text, rule_type="Contains", case_insensitive="true"):
    # "Rule" holds the text to match as its own text, beside the latency.
    return ext("ExtTCPMessage", "<ExtTCPMessage><StationAddress>%s</StationAddress><Rule>%s<Latency>0</Latency></Rule>"
               "<RuleType>%s</RuleType><CaseInsensitive>%s</CaseInsensitive></ExtTCPMessage>" % (
                   station, text, rule_type, case_insensitive))


def data_magnet(category, conditions, cameras):
    conds = "".join("<Condition><FieldName>%s</FieldName><FieldType>%s</FieldType><FieldValue>%s</FieldValue>"
                    "</Condition>" % c for c in conditions)
    return ext("ExtDataMagnet", "<ExtDataMagnet>%s<Category>%s</Category><Camera>%s</Camera><ConditionList>%s"
               "</ConditionList></ExtDataMagnet>" % (latency(0), category, ",".join(cameras), conds))


def access_rule(rule_id, rule_name, cameras):
    return ext("ExtAccessRule", "<ExtAccessRule>%s<RuleId>%d</RuleId><RuleName>%s</RuleName><Camera>%s</Camera>"
               "</ExtAccessRule>" % (latency(0), rule_id, rule_name, ",".join(cameras)))


VIRTUAL_TRIGGER_IDS = {}


def virtual(cam_id, name, icon):
    key = (cam_id, name)
    if key not in VIRTUAL_TRIGGER_IDS:
        VIRTUAL_TRIGGER_IDS[key] = len(VIRTUAL_TRIGGER_IDS) + 1
    return ext("VirtualTrigger", "<VirtualTrigger><Id>%d</Id><Name>%s</Name><Camera>%s</Camera><IconType>%d</IconType>"
               "%s</VirtualTrigger>" % (VIRTUAL_TRIGGER_IDS[key], name, cam_id, icon, latency(0)))


# --- actions --------------------------------------------------------------------------------------------

def mail(to, subject, content, cc="", snapshots=()):
    shots = ""
    if snapshots:
        shots = "<SnapshotCameraList>%s</SnapshotCameraList>" % "".join("<Camera>%s</Camera>" % c for c in snapshots)
    return ("<Action><SendMail><SenderName>Site alarms</SenderName><From>alarms@northgate.example</From><To>%s</To>"
            "<Cc>%s</Cc><Subject>%s</Subject><MailContent>%s</MailContent>%s</SendMail></Action>" % (
                to, cc, subject, content, shots))


def sms(phone, message):
    return "<Action><SMS><PhoneNum>%s</PhoneNum><Message>%s</Message></SMS></Action>" % (phone, message)


def http(url, post=False, content="", content_type="application/json", user="", pwd=""):
    return ("<Action><HTTP><URL>%s</URL><NeedAuth>%s</NeedAuth><User>%s</User><Pwd>%s</Pwd><Post>%s</Post>"
            "<ContentType>%s</ContentType><HTTPContent>%s</HTTPContent></HTTP></Action>" % (
                url, "true" if user else "false", user, pwd, "true" if post else "false", content_type, content))


def record(*cams):
    return "<Action><Recording>%s</Recording></Action>" % "".join('<Cam GrpID="1">%s</Cam>' % c for c in cams)


def preset(*entries):
    return "<Action><PresetLocMove>%s</PresetLocMove></Action>" % "".join(
        "<Entry><Name>%s</Name><Pos>%d</Pos></Entry>" % e for e in entries)


def set_do(device, *outputs):
    # Outputs are switched to "1" (trigger) or "0" (normal).
    levels = {"High": "1", "Low": "0"}
    return "<Action><SetDO><Entry><Name>%s</Name>%s</Entry></SetDO></Action>" % (device, "".join(
        "<DO><Idx>%d</Idx><Val>%s</Val><Period>%d</Period></DO>" % (i, levels[v], p) for i, v, p in outputs))


def popup(cams, include_trigger=True):
    return ("<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size><ShowTime>5</ShowTime>"
            "<AutoClose>false</AutoClose><IncludeTriggerCam>%s</IncludeTriggerCam>%s</PopupWindow></ClientNotification>"
            "</Action>" % ("true" if include_trigger else "false",
                           "".join("<Cam ShowMotion='0'>%s</Cam>" % c for c in cams)))


def emap(*maps):
    return "<Action><ClientNotification><Type>GoToEMap</Type><GoToEMap>%s</GoToEMap></ClientNotification></Action>" % (
        "".join("<MapInfo><MapId>%s</MapId>%s</MapInfo>" % (m, "".join("<PlayCam>%s</PlayCam>" % c for c in cams))
                for m, cams in maps))


def sound(*names):
    return ("<Action><ClientNotification><Type>SoundTheAlarm</Type><SoundTheAlarm>%s</SoundTheAlarm>"
            "</ClientNotification></Action>" % "".join("<Sound>%s</Sound>" % n for n in names))


def bookmark(cam_id, duration=60, description="Alarm bookmark"):
    return ("<Action><AddBookmark><CamInfo><CamId>%s</CamId><LocId>1</LocId><CamRefName>%s</CamRefName>"
            "<Duration>%d</Duration><Creator>Alarm server</Creator><Description>%s</Description><Group>Alarms</Group>"
            "</CamInfo></AddBookmark></Action>" % (cam_id, CAMERA_NAMES[cam_id], duration, description))


def ip_audio(device_id, file_id):
    device = dict(AUDIO_DEVICES)[device_id]
    audio = dict(AUDIO_FILES)[file_id]
    return ("<Action><PlayIPAudio><IPAudioInfo><IPAudioId>%d</IPAudioId><IPAudioName>%s</IPAudioName>"
            "<AudioFileId>%d</AudioFileId><AudioFileName>%s</AudioFileName></IPAudioInfo></PlayIPAudio></Action>" % (
                device_id, device, file_id, audio))


def mobile(*roles, push_all=False):
    return "<Action><MobileNotification><PushInfo><PushAll>%s</PushAll>%s</PushInfo></MobileNotification></Action>" % (
        "true" if push_all else "false", "".join("<RoleId>%d</RoleId>" % r for r in roles))


def ftp(path):
    return ("<Action><FTP><Server>ftp.northgate.example</Server><Path>%s</Path></FTP></Action>" % path)


def launch(program):
    return "<Action><LaunchProgram><Path>%s</Path></LaunchProgram></Action>" % program


# --- schedules ------------------------------------------------------------------------------------------

def mapping(schedule):
    frames = []
    for left, right, top, bottom in SCHEDULES[schedule]:
        days = "".join('<Ele B="%d"/>' % d for d in range(left + 1, right + 1))
        frames.append('<Ele><Frame><Name>%s</Name><DayList>%s</DayList><Intervals><Ele B="%d" E="%d"/></Intervals>'
                      '</Frame></Ele>' % (schedule, days, top * 3600, bottom * 3600))
    return "<Mapping>%s</Mapping>" % "".join(frames)


# --- the rules ------------------------------------------------------------------------------------------

OPS = "security@northgate.example"
SUP = "supervisors@northgate.example"
IT = "it-oncall@northgate.example"
HOOK = "http://127.0.0.1:8080/hooks/alarm"

RULES = [
    ("Gate forced open", "Gate contact opens outside delivery hours", True, "Night shift",
     [cam_di("cam-01", 1)], [popup(["cam-01", "cam-02"]), record("cam-01", "cam-02"), sound("siren.mp3"), mail(OPS, "Gate forced open", "The main gate opened outside delivery hours.", SUP, ["cam-01"])]),
    ("Gatehouse panic button", "Guard pressed the panic button", True, "All day",
     [cam_di("cam-03", 1)], [popup(["cam-03"]), sound("klaxon.mp3"), sms("+4915112345678", "Panic button at gatehouse"), mobile(1, 2)]),
    ("Intercom call at main gate", "", True, "All day",
     [cam_di("cam-01", 2, "Low")], [popup(["cam-01"], False), sound("doorbell.mp3")]),
    ("Barrier held open", "Exit barrier output stuck high", True, "All day",
     [cam_do("cam-02", 1, "High", 30)], [mail(OPS, "Barrier held open", "The exit barrier stays open.")]),
    ("Yard north motion at night", "Motion in the yard while the site is closed", True, "Night shift",
     [motion("cam-05", 1, 5)], [set_do("cam-05", (1, "High", 120)), record("cam-05"), popup(["cam-05"])]),
    ("Yard south motion at night", "", True, "Night shift",
     [motion("cam-06", 1, 5), motion("cam-06", 2, 5)], [set_do("cam-06", (1, "High", 120)), record("cam-06")]),
    ("North fence line crossing", "Someone crossed the north fence line", True, "All day",
     [vca("cam-10", "LineDetection", "North fence line")], [popup(["cam-10", "cam-05"]), preset(("cam-05", 3)), record("cam-10", "cam-05"), sound("siren.mp3")]),
    ("East fence intrusion", "", True, "Night shift",
     [vca("cam-11", "FieldDetection", "East fence zone")], [popup(["cam-11"]), record("cam-11"), emap(("M12", ["cam-11", "cam-07"]))]),
    ("Loitering at staff entrance", "Person waits at the staff door for more than a minute", True, "Office hours",
     [vca("cam-31", "Loitering", "Staff door area")], [popup(["cam-31"]), bookmark("cam-31", 120, "Loitering at staff door")]),
    ("Unattended object in lobby", "", True, "Office hours",
     [vca("cam-30", "AbandonObject", "Lobby floor")], [popup(["cam-30"]), sound("chime.mp3"), mail(OPS, "Unattended object", "An object was left in the lobby.", "", ["cam-30"])]),
    ("Missing pallet in high-value cage", "", True, "All day",
     [vca("cam-20", "MissingObject", "Cage shelf")], [record("cam-20"), bookmark("cam-20"), mail(SUP, "Missing object in cage", "An object disappeared from the high-value cage.")]),
    ("Crowd in canteen", "More than 40 people in the canteen", False, "Office hours",
     [vca("cam-32", "CrowdDetection", "Canteen")], [mail("facility@northgate.example", "Canteen crowded", "Canteen occupancy limit reached.")]),
    ("Face detected at roof access", "", True, "All day",
     [vca("cam-27", "FaceDetection", "Roof hatch")], [popup(["cam-27"]), record("cam-27"), sound("klaxon.mp3")]),
    ("Car park zone dwell", "Vehicles dwelling in the fire lane", True, "All day",
     [vca("cam-33", "ZoneDetection", "Fire lane")], [popup(["cam-33"]), ip_audio(1, 12)]),
    ("Smart tracking yard", "", False, "Night shift",
     [vca("cam-07", "SmartTracking", "Stack east")], [preset(("cam-07", 1), ("cam-08", 2))]),
    ("Running in warehouse aisles", "Forklift safety", True, "Office hours",
     [vca("cam-17", "RunningDetection", "Aisle A"), vca("cam-18", "RunningDetection", "Aisle B"), vca("cam-19", "RunningDetection", "Aisle C")], [ip_audio(3, 12), bookmark("cam-17")]),
    ("Parking violation at docks", "", True, "Office hours",
     [vca("cam-16", "ParkingViolationDetection", "Dock 4 apron")], [ip_audio(1, 12), mail(OPS, "Parking violation", "A vehicle blocks dock 4.")]),
    ("Restricted zone: battery room", "", True, "All day",
     [vca("cam-22", "RestrictedZoneDetection", "Charging bays")], [popup(["cam-22"]), sound("siren.mp3"), mobile(2)]),
    ("Perimeter hot spot", "Thermal camera sees a fire spot", True, "All day",
     [thermal("cam-38", "FireSpotDetection", 1)], [popup(["cam-38"]), sound("evacuation.mp3"), sms("+4915112345678", "Fire spot on perimeter"), mobile(push_all=True)]),
    ("Perimeter thermal intrusion", "", True, "Night shift",
     [thermal("cam-38", "ThermalIntrusion", 2)], [popup(["cam-38", "cam-10"]), record("cam-38")]),
    ("Battery room temperature alarm", "Temperature above threshold in the charging room", True, "All day",
     [thermal("cam-22", "TemperatureThresholdAlarm", 1), cam("cam-22", "Temperature")], [set_do("cam-22", (1, "High", 600)), mail(SUP, "Battery room too warm", "Check the charging room."), sound("klaxon.mp3")]),
    ("Watch list match at reception", "A face on the watch list was seen", True, "All day",
     [guardian("cam-29", 3, "Banned visitors")], [popup(["cam-29"]), mobile(1), sound("chime.mp3")]),
    ("Video loss any gate camera", "", True, "All day",
     [video_loss("cam-01"), video_loss("cam-02"), video_loss("cam-03")], [mail(IT, "Video loss at gate", "A gate camera lost its video signal.")]),
    ("Video restored gate camera", "", False, "All day",
     [video_loss("cam-01", 1)], [mail(IT, "Video restored at gate", "Video is back.")]),
    ("PIR in cash office", "", True, "Night shift",
     [cam("cam-36", "PIR")], [popup(["cam-36"]), record("cam-36"), sound("siren.mp3"), sms("+4915112345678", "PIR in cash office")]),
    ("Camera tampering", "Someone covered or moved a camera", True, "All day",
     [cam("cam-05", "Tampering"), cam("cam-06", "Tampering"), cam("cam-10", "Tampering"), cam("cam-11", "Tampering")], [mail(OPS, "Camera tampering", "A perimeter camera was tampered with."), popup([])]),
    ("IR illuminator on fence", "", False, "Night shift",
     [cam("cam-10", "IR")], [bookmark("cam-10")]),
    ("SD card wearing out", "", True, "All day",
     [cam("cam-39", "SmartSD"), cam("cam-40", "SmartSD")], [mail(IT, "SD card life", "Replace the SD card of truck 7.")]),
    ("Shouting in reception", "Audio level above the limit", True, "Office hours",
     [cam("cam-29", "AudioDetection")], [popup(["cam-29"]), bookmark("cam-29", 30, "Loud noise")]),
    ("Truck 7 shock", "", True, "All day",
     [cam("cam-40", "ShockDetection")], [mail(SUP, "Truck 7 shock", "Shock detected on truck 7 cargo camera."), mobile(2)]),
    ("PPTZ tour interrupted", "", False, "All day",
     [cam("cam-07", "PPTZTrigger")], [preset(("cam-07", 1))]),
    ("Recording stopped on gate camera", "", True, "All day",
     [cam_status("RecStatus", "cam-01", "Stop")], [mail(IT, "Recording stopped", "Recording of the main gate stopped.")]),
    ("Recording error warehouse", "", True, "All day",
     [cam_status("RecErr", "cam-20", "Error")], [mail(IT, "Recording error", "Recording error on the high-value cage camera.")]),
    ("Camera disconnected", "Any dock camera lost its connection", True, "All day",
     [cam_status("CamConn", "cam-13", "Lost", 30), cam_status("CamConn", "cam-14", "Lost", 30)], [mail(IT, "Camera offline", "A dock camera is offline."), http(HOOK, True, '{"event":"camera offline"}')]),
    ("Recorder A offline", "", True, "All day",
     [station_status("StationConn", "10.20.0.11", "Down", lat=60)], [mail(IT, "Recorder offline", "Recorder A does not answer."), sms("+4915187654321", "Recorder A offline"), launch("/usr/local/bin/page-oncall")]),
    ("Failover took over", "", True, "All day",
     [station_status("FailoverState", "10.20.0.12", "Running")], [mail(IT, "Failover running", "The failover recorder took over.")]),
    ("Storage failure", "", True, "All day",
     [station_status("StorageConn", "10.20.0.11", "Unavailable"), station_status("StorageConn", "10.20.0.12", "Unavailable")], [mail(IT, "Storage failure", "A recorder lost its storage."), http(HOOK, True, '{"event":"storage"}')]),
    ("Recorder fan error", "", True, "All day",
     [station_status("FanStatus", "10.20.0.13", "Error")], [mail(IT, "Fan error", "Fan error on recorder C.")]),
    ("Truck 7 GPS lost", "", True, "All day",
     [station_status("GpsConn", "10.20.0.14", "Lost")], [mail(SUP, "GPS lost", "Truck 7 lost its GPS fix.")]),
    ("Storage full", "", True, "All day",
     [station_status("StorageCapacity", "10.20.0.11", "Exhausted", "StorageCap")], [mail(IT, "Storage full", "Recorder A storage is full."), ftp("/reports/storage")]),
    ("Fire panel input", "Fire panel signals an alarm on recorder A", True, "All day",
     [dio_status("10.20.0.11", "DI", 1, "High", "Fire panel")], [popup(["cam-13", "cam-14", "cam-15", "cam-16"], False), sound("evacuation.mp3"), ip_audio(3, 11), emap(("M13", ["cam-17", "cam-18"]))]),
    ("Truck 7 harsh braking", "", True, "All day",
     [gsensor("Gsensor", "10.20.0.14", "Collision")], [mail(SUP, "Harsh braking", "Truck 7 G-sensor alarm."), bookmark("cam-39")]),
    ("Truck 7 speeding", "Truck 7 faster than 80 km/h", True, "All day",
     [gsensor("GpsSpeed", "10.20.0.14", "Over")], [mobile(2, 3)]),
    ("Brute force on recorder", "", True, "All day",
     [attack("BruteForceAttack", "10.20.0.11"), attack("BruteForceAttack", "10.20.0.12")], [mail(IT, "Brute force attack", "Repeated failed logins."), mobile(4)]),
    ("Cyber attack detected", "", True, "All day",
     [attack("CyberAttack", "10.20.0.13")], [mail(IT, "Cyber attack", "Recorder C reports an attack."), http("http://127.0.0.1:8080/hooks/siem", True, '{"severity":"high"}')]),
    ("Quarantined device", "", True, "All day",
     [attack("QuarantineEvent", "10.20.0.13")], [mail(IT, "Quarantine", "A device was quarantined.")]),
    ("Canteen occupancy back to zero", "Area report for end of shift", False, "Weekday nights",
     [area_report("10.20.0.13", 2, 0, "Equal")], [mail("facility@northgate.example", "Canteen empty", "Cleaning can start.")]),
    ("Licence trial expired", "", True, "All day",
     [sys_station("SysLicense", "10.20.0.11", "TrialExpired")], [mail(IT, "Licence", "The trial licence expired.")]),
    ("Low virtual memory", "", True, "All day",
     [sys_station("SysVirMem", "10.20.0.13", "Low")], [mail(IT, "Low memory", "Recorder C is low on virtual memory.")]),
    ("Recorder network down", "", True, "All day",
     [sys_station("SysNetwork", "10.20.0.12", "Down")], [sms("+4915187654321", "Recorder B network down")]),
    ("Sprinkler flow", "Water flow in the sprinkler system", True, "All day",
     [ext_io("io-01", "DI", 2)], [sound("evacuation.mp3"), popup(["cam-17", "cam-18", "cam-19"], False), set_do("io-01", (1, "High", 0), (2, "High", 0))]),
    ("Dock 5 door open after hours", "", True, "Night shift",
     [ext_io("io-01", "DI", 3, lat=120)], [popup(["cam-16"], False), set_do("io-01", (1, "High", 60))]),
    ("Barrier fault", "", True, "All day",
     [ext_io("io-02", "DI", 1)], [mail(OPS, "Barrier fault", "The gate barrier reports a fault."), set_do("io-02", (1, "High", 0), (2, "Low", 0))]),
    ("POS void over limit", "Cash register message", True, "Office hours",
     [tcp("10.20.0.13", "VOID AMOUNT")], [popup(["cam-36"], False), bookmark("cam-36", 300, "Void over limit")]),
    ("Weighbridge overload", "Data magnet: weight over 40 t", True, "All day",
     [data_magnet("Weighbridge", [("Weight", "Number", "40000"), ("Unit", "Text", "kg")], ["cam-04", "cam-02"])], [popup([]), record("cam-04"), mail(SUP, "Overloaded truck", "A truck above 40 t is on the scale.")]),
    ("Badge denied at staff entrance", "Access control denied a badge", True, "All day",
     [access_rule(7, "Staff door denied", ["cam-31"])], [popup([]), bookmark("cam-31")]),
    ("Operator: open main gate", "Virtual button in the gate camera's view", True, "All day",
     [virtual("cam-01", "Open gate", 1)], [set_do("cam-01", (1, "High", 5)), popup(["cam-01"], False), bookmark("cam-01", 30, "Gate opened by operator")]),
    ("Operator: lockdown", "Virtual button: lock every door and sound the alarm", True, "All day",
     [virtual("cam-03", "Lockdown", 2), virtual("cam-29", "Lockdown", 2)], [sound("klaxon.mp3"), set_do("cam-31", (1, "High", 0)), mobile(push_all=True), emap(("M{202EE83D-9667-42AD-AED9-5A4C240193FA}", ["cam-01", "cam-03"]), ("M12", ["cam-29"])), http(HOOK, True, '{"event":"lockdown"}')]),
    ("Operator: floodlights on", "", True, "Night shift",
     [virtual("cam-05", "Floodlights", 3)], [set_do("cam-05", (1, "High", 900)), set_do("cam-06", (1, "High", 900))]),
    ("Operator: talk-down yard", "Play a warning on the yard speaker", True, "All day",
     [virtual("cam-06", "Talk-down", 4)], [ip_audio(1, 12), popup(["cam-06"])]),
    ("Server room door and water", "", True, "All day",
     [cam_di("cam-28", 1, lat=30), cam_di("cam-28", 2)], [mail(IT, "Server room", "Server room door or water sensor."), popup(["cam-28"]), set_do("cam-28", (1, "High", 0))]),
    ("Hold-up in cash office", "Silent alarm: no sound on site", True, "All day",
     [cam_di("cam-36", 2)], [popup(["cam-36", "cam-29"]), record("cam-36", "cam-29"), sms("+4915112345678", "HOLD-UP cash office"), http("http://127.0.0.1:8080/hooks/police", True, '{"site":"Northgate"}')]),
    ("Cold store door open", "Door open longer than 5 minutes", True, "All day",
     [cam_di("cam-21", 1, lat=300)], [sound("chime.mp3"), ip_audio(3, 13)]),
    ("Truck 7 cargo door", "", True, "Weekend",
     [cam_di("cam-40", 1)], [mail(SUP, "Cargo door", "Truck 7 cargo door opened."), set_do("cam-40", (1, "High", 60))]),
]


def rule_xml(rule_id, rule):
    name, description, enabled, schedule, triggers, actions = rule
    return ("<Tmcard><TmcardID>%d</TmcardID><Revision>1</Revision><Name>%s</Name><Enabled>%s</Enabled>"
            "<Description>%s</Description>%s<TriggerList>%s</TriggerList><ActionList>%s</ActionList></Tmcard>\n" % (
                rule_id, enc(name), "true" if enabled else "false", enc(description), mapping(schedule),
                "".join(triggers), "".join(actions)))


def silent_mp3(frames):
    # MPEG-1 Layer III, 128 kbit/s, 44.1 kHz, mono; all-zero side information decodes as silence.
    frame = bytes([0xFF, 0xFB, 0x90, 0xC4]) + bytes(417 - 4)
    return frame * frames


def rectangles(schedule):
    return json.dumps({"Rectangles": [{"Bottom": b, "Left": l, "RecordingMode": "Continuous", "Right": r, "Top": t}
                                      for l, r, t, b in SCHEDULES[schedule]]}, separators=(",", ":"))


def main():
    if os.path.isdir(SITE):
        shutil.rmtree(SITE)
    os.makedirs(os.path.join(SITE, "rules"))
    os.makedirs(os.path.join(SITE, "sounds"))
    for index, rule in enumerate(RULES):
        rule_id = 1001 + index
        with open(os.path.join(SITE, "rules", "%d.xml" % rule_id), "w") as out:
            out.write(rule_xml(rule_id, rule))
    for index, name in enumerate(SOUNDS):
        with open(os.path.join(SITE, "sounds", name), "wb") as out:
            out.write(silent_mp3(8 + 4 * index))
    site = {
        "name": "Northgate Logistics Park",
        "stations": [{"id": i, "name": n} for i, n in STATIONS],
        "cameras": [{"id": i, "name": n, "station": s, "diNames": di, "doNames": do} for i, n, s, di, do in CAMERAS],
        "ioDevices": [{"id": i, "name": n, "diNames": di, "doNames": do} for i, n, di, do in IO_DEVICES],
        "roles": [{"id": i, "name": n} for i, n in ROLES],
        "audioDevices": [{"id": i, "name": n} for i, n in AUDIO_DEVICES],
        "audioFiles": [{"id": i, "name": n} for i, n in AUDIO_FILES],
        "maps": [{"id": i, "name": n} for i, n in MAPS],
        "schedules": [{"name": n, "content": rectangles(n)} for n in SCHEDULES],
        "virtualTriggers": [{"camera": c, "name": n, "id": i} for (c, n), i in VIRTUAL_TRIGGER_IDS.items()],
        "supportGuardian": True,
        "reserveTime": 30,
    }
    with open(os.path.join(SITE, "site.json"), "w") as out:
        json.dump(site, out, indent=1)
        out.write("\n")
    print("%d rules, %d cameras" % (len(RULES), len(CAMERAS)))


if __name__ == "__main__":
    main()
