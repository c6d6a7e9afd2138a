"""What is said of numbers: texts, floats and seconds on their way through the library."""

from typing import Any

from emulator.process import Process
from emulator.scenarios.scenario import Load, Scenario, expect, expect_rect, started
from emulator.scenarios.screens import NUMBER, text
from emulator.world import World

IDENTITY_QUERY = (
    "+[ZQNumberIdentityService "
    "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:]"
)
STORE = "-[ZQCallRecordService insertOrUpdateNumberIdentityWithNumber:]"
OPEN = "+[ZQPhoneUtil systemOpenUrl:]"
CLOUD_ANSWER = "numberIdentityService:didGetMarkInfoFromCloud:error:"
REVIEWED, STORED = 3, 10


def row(process: Process, call: Any) -> Any:
    """Returns a row of recent calls with its labels; `below_name` is the line under the name."""
    cell = process.new("PHRecentsCell", contentView=process.new("UIView"), call=call)
    cell.add(cell.contentView)
    font = process.new("UIFont", pointSize=13.0)
    cell.below_name = label = process.new("UILabel", font=font, text=text(process, "手机"))
    cell.set_variable("_callerLabelLabel", label)
    time = process.new("PHRecentsDateLabel", timeDesignator=text(process, "PM"))
    time.text, time.font = text(process, "2:05"), process.new("UIFont", pointSize=15.0)
    cell.set_variable("_callerDateLabel", time)
    return cell


def recents_row(load: Load) -> None:
    """iOS 8: the line between name and date, its text kept under number and rounded second."""
    process = started(load, World(version=8.0))
    date = process.new("NSDate", timeIntervalSince1970=1400000001.5)
    cell = row(process, process.new("PHRecentCall", callerId=text(process, NUMBER), date=date))
    process.send(cell, "layoutSubviews")
    expect("the line", cell.find(2534).text.text, "北京 联通")
    expect_rect("the line", cell.find(2534), 34.0, 28.0, 169.0, 15.0)
    expect_rect("the icon", cell.find(2533), 70.0, 29.0, 15.0, 12.0)
    expect("the label under the name", cell.below_name.text, None)
    kept = [e for e in process.runtime.log if e.text == "-[NSMutableDictionary setObject:forKey:]"]
    expect("the key", [event.arguments[1].text for event in kept], [f"{NUMBER}_1400000002"])


def contact_row(load: Load) -> None:
    """iOS 7.1: of a contact with two numbers, which one it was and from where."""
    process = started(load, World(version=7.1))
    values = [text(process, NUMBER), text(process, "13900001111")]
    person = process.runtime.shared("ABContact")
    person.values = process.new("NSArray", items=values)
    call = process.new("PHRecentCall", destination=values[0], addressBookRecord=1)
    cell = row(process, call)
    process.send(cell, "layoutSubviews")
    expect("the line", cell.find(2534).text.text, "010 66668888  北京 联通")
    expect("references to the numbers", person.values.references, 1)


def dictionary(process: Process, **entries: Any) -> Any:
    """Returns a dictionary of the process."""
    made = process.new("NSDictionary")
    made.entries = {
        key: text(process, value) if isinstance(value, str) else value
        for key, value in entries.items()
    }
    return made


def cloud_answer(load: Load) -> None:
    """A query with arguments of every size, and an answer whose rating travels as a float."""
    process = started(load, World(version=7.1))
    service = process.send(process.runtime.classes["ZQDialCloudQueryService"], "currentService")
    found = process.send(
        service, "getNumberIdentityForNumber:isOutgoing:", text(process, NUMBER), True
    )
    expect("what is known", found, None)
    query = next(event for event in process.runtime.log if event.text == IDENTITY_QUERY)
    expect("the query", query.arguments[1:], (True, False, service, 0.0, 2))
    partner = dictionary(
        process, brand_type="other", rating=process.new("NSNumber", floatValue=4.5)
    )
    yes = process.new("NSNumber", boolValue=True)
    kind = process.new("NSNumber", intValue=REVIEWED)
    answer = dictionary(process, hit=yes, Tag="餐馆", type=kind, partner=partner)
    process.send(service, CLOUD_ANSWER, None, answer, None)
    stored = next(event.arguments[0] for event in process.runtime.log if event.text == STORE)
    expect("the stored rating, kind", (stored.rating, stored.type), (4.5, STORED))
    expect("the stored label", (stored.identity.text, stored.number.text), ("餐馆", NUMBER))
    expect("the source's end", stored.source.text.rpartition("##")[2], "4.5")


def links(load: Load) -> None:
    """Seconds become a whole number that a link can carry."""
    process = started(load, World())
    hook = process.runtime.classes["ZQSystemCallHistoryViewHook"]
    process.send(hook, "setPhonePureNumber:", text(process, NUMBER))
    for seconds, shown in (
        (1400000001.75, 1400000001),
        (-1.5, -1),
        (5e9, 2147483647),
        (float("nan"), 0),
    ):
        date = process.new("NSDate", timeIntervalSince1970=seconds)
        process.send(hook, "setCurrentRecordDate:", date)
        process.runtime.forget()
        process.send(hook, "markButtonPressed")
        opened = [e.arguments[0].text for e in process.runtime.log if e.text == OPEN]
        expect("links opened", opened, [f"zequor://mark?{NUMBER}/{shown}"])


SCENARIOS = [
    Scenario("recents, iOS 8: a row's line by CGSize, format, NSRange, rounding", recents_row),
    Scenario("recents, iOS 7.1: a contact's number by the address book's functions", contact_row),
    Scenario("cloud query and answer: doubles and floats among the arguments", cloud_answer),
    Scenario("links: seconds as a whole number", links),
]
