#!/usr/bin/python3
"""The players' page in a real browser: Debian's chromium, headless, driven
by selenium, against the server on a stage (players_stage). A phone joins
with the room code, buzzes and reads "You're first!", types a final wager
and a response; the game gets them. Then a German phone does the same in
German, the longest of the page's languages, and no text on either is wider
than its box at 360 px. Saves what the phone shows at 360 x 740 in the
folder given as the second argument (the German screens with "-de").

    browser_players.py STAGE [SCREENSHOT_FOLDER]
"""
import os
import subprocess
import sys
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait


# What each language's phone reads when it may buzz and when it was first.
TEXTS = {"en": ("BUZZ!", "You're first!"), "de": ("DRÜCKEN!", "Ihr wart zuerst!")}

# The visible elements whose text runs past their box.
OVERFLOWING = """
return [...document.querySelectorAll('body *')].filter(e => e.offsetParent && e.clientHeight > 0 &&
    e.textContent.trim() && !/auto|scroll/.test(getComputedStyle(e).overflow) &&
    (e.scrollWidth > e.clientWidth + 1 || e.scrollHeight > e.clientHeight + 1)).map(e => e.id + ': ' + e.textContent.trim().slice(0, 60));
"""


def main():
    for language in TEXTS:
        play(language, sys.argv[2] if len(sys.argv) > 2 else None)
    print("the page joined, buzzed first, wagered and answered in a real browser, in English and German")


def play(language, shots):
    stage = subprocess.Popen([sys.argv[1]], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    _, port, room = stage.stdout.readline().split()

    def tell(command):
        stage.stdin.write(command + "\n")
        stage.stdin.flush()
        while True:
            line = stage.stdout.readline()
            assert line, "the stage ended"
            if line.strip() == "done " + command:
                return

    def heard(prefix):
        line = stage.stdout.readline().strip()
        while not line.startswith(prefix):
            line = stage.stdout.readline().strip()
        return line

    options = Options()
    options.binary_location = "/usr/bin/chromium"
    for flag in ("--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--disable-sync",
                 "--user-data-dir=" + tempfile.mkdtemp(), "--window-size=360,740", "--lang=" + language):
        options.add_argument(flag)
    options.add_experimental_option("prefs", {"intl.accept_languages": language})
    browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    wait = WebDriverWait(browser, 10)
    text = lambda element_id: browser.find_element(By.ID, element_id).text

    def shoot(name):
        over = browser.execute_script(OVERFLOWING)
        assert not over, (language, name, over)
        if shots:
            time.sleep(0.4)  # the button's colour has finished changing
            suffix = "" if language == "en" else "-" + language
            browser.save_screenshot(os.path.join(shots, name.replace(".png", suffix + ".png")))
    try:
        browser.get("http://127.0.0.1:%s/" % port)
        wait.until(lambda b: b.find_element(By.ID, "join").is_displayed())
        browser.find_element(By.ID, "room").send_keys(room.lower())
        teams = wait.until(lambda b: b.find_elements(By.CSS_SELECTOR, "#teams button"))
        assert [t.text for t in teams] == ["Team 1", "Team 2", "Team 3"], [t.text for t in teams]
        teams[1].click()
        browser.find_element(By.ID, "name").send_keys("<b>Ana</b>")
        shoot("phone-join.png")
        browser.find_element(By.ID, "joinButton").click()
        wait.until(lambda b: b.find_element(By.ID, "game").is_displayed())
        assert text("playerName") == "<b>Ana</b>", text("playerName")  # a name is text, never markup

        tell("clue")
        wait.until(lambda b: text("buzzText") == TEXTS[language][0])
        shoot("phone-open.png")
        browser.find_element(By.ID, "buzz").click()
        wait.until(lambda b: text("buzzText") == TEXTS[language][1])
        assert heard("first") == "first 1"
        shoot("phone-first.png")

        tell("final")
        wait.until(lambda b: b.find_element(By.ID, "wagerForm").is_displayed())
        browser.find_element(By.ID, "wagerInput").send_keys("0")
        browser.find_element(By.CSS_SELECTOR, "#wagerForm button").click()
        assert heard("wager") == "wager 1 0"
        tell("finalclue")
        wait.until(lambda b: b.find_element(By.ID, "responseForm").is_displayed())
        browser.find_element(By.ID, "responseInput").send_keys("What is the Baltic?")
        browser.find_element(By.CSS_SELECTOR, "#responseForm button").click()
        assert heard("response") == "response 1 What is the Baltic?"
        shoot("phone-final.png")
        tell("lock")
        wait.until(lambda b: not b.find_element(By.ID, "responseForm").is_displayed())
    finally:
        browser.quit()
        stage.stdin.write("quit\n")
        stage.stdin.flush()
        stage.wait(10)


if __name__ == "__main__":
    main()
