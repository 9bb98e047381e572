"use strict";

// Every visible text of the page, by language. To add one, copy "en" under
// its two-letter code (de, fr, es, pt...) and translate the values; {0}, {1}
// are filled in by t(). A missing key falls back to English.
const TEXTS = {
  en: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Connecting…",
    reconnecting: "Connection lost — reconnecting…",
    joinTitle: "Join the game",
    roomCode: "Room code",
    chooseTeam: "Choose your team",
    teamN: "Team {0}",
    yourName: "Your name",
    join: "Join",
    joining: "Joining…",
    pickTeam: "Tap your team first.",
    notConnected: "Not connected yet — try again in a moment.",
    badChars: "That has a character the game cannot show; please leave it out.",
    err_room: "That room code is wrong — check the big screen.",
    err_full: "The room is full.",
    err_name: "Type a name of 1 to 20 characters.",
    err_team: "That team is not in the game — choose another.",
    err_busy: "Too many taps — slow down a little.",
    err_other: "Something went wrong — try again.",
    removed: "The host removed you — join again",
    score: "Score: {0}",
    idle: "Wait for a question",
    closed: "Not yet…",
    open: "BUZZ!",
    first: "You're first!",
    other: "{0} answers",
    otherTeam: "Another team answers",
    locked: "Too early — wait",
    out: "Out for this clue",
    hint_closed: "Wait until the buzzers open.",
    hint_open: "Press now!",
    hint_first: "Give your answer out loud.",
    hint_locked: "You pressed too early.",
    hint_out: "Wait for the next clue.",
    hint_wager: "Only your team sees your wager.",
    hint_finalWager: "Other teams can't see your wager.",
    hint_finalResponse: "You can change your response until time is up.",
    hint_finalLocked: "Wait for the host.",
    dailyDouble: "Daily Double!",
    finalRound: "Final round",
    wagerRange: "From {0} to {1}",
    badWager: "Enter a whole number from {0} to {1}.",
    yourWager: "Your wager: {0}",
    noWager: "No wager",
    yourResponse: "Your response",
    acceptedResponse: "Your response: {0}",
    noResponse: "No response",
    emptyResponse: "Type a response first.",
    send: "Send",
    sent: "Sent.",
    secondsLeft: "{0} s left",
    timeUp: "Time is up",
    lockedIn: "Locked in",
  },
};

const LANG = (() => {
  const wanted = navigator.languages && navigator.languages.length ? navigator.languages : [navigator.language || ""];
  for (const l of wanted) {
    const code = String(l).slice(0, 2).toLowerCase();
    if (TEXTS[code]) return code;
  }
  return "en";
})();

function t(key, ...args) {
  const s = (TEXTS[LANG] && TEXTS[LANG][key]) || TEXTS.en[key] || key;
  // A function as replacement, so "$" in a name is never read as a pattern.
  return s.replace(/\{(\d)\}/g, (_, i) => String(args[i]));
}

// Intl only for the grouping: the game's points always show with "$".
const NUMBER = new Intl.NumberFormat(LANG, { maximumFractionDigits: 0 });
const money = (n) => (n < 0 ? "-$" : "$") + NUMBER.format(Math.abs(n));

const $ = (id) => document.getElementById(id);
const TOKEN_KEY = "quizzarr-token";
const DELAYS = [500, 1000, 2000, 3000]; // then 3 s forever
const BUZZ_PHASES = ["idle", "closed", "open", "first", "other", "locked", "out"];
const BUZZ_SENDS = ["closed", "open", "locked"]; // the server judges early or late
const MOST_WAGER = 9999999; // the server's own limit

let ws = null, retry = 0, retryTimer = 0, openTimer = 0, hiddenAt = 0;
let teams = [], chosenTeam = -1, me = null, score = null;
let phase = "", st = {}, lastBuzz = 0, deadline = 0, tickTimer = 0, joinTimer = 0;
const sentAt = [];
let token = loadToken();

// Storage may be refused (private browsing); the page still works without.
function loadToken() {
  try {
    const v = localStorage.getItem(TOKEN_KEY) || "";
    return /^[0-9a-f]{32}$/.test(v) ? v : "";
  } catch (e) { return ""; }
}
function saveToken(v) {
  token = /^[0-9a-f]{32}$/.test(v) ? v : "";
  try { token ? localStorage.setItem(TOKEN_KEY, token) : localStorage.removeItem(TOKEN_KEY); } catch (e) { /* kept in memory */ }
}

// The server drops names and responses with control or format characters
// (the joiners of emoji excepted) without a word, so they are caught here;
// null = refused.
function cleanText(s) {
  s = String(s).replace(/[\r\n\t]+/g, " ");
  if (/[\p{Cc}\p{Cs}\u2028\u2029]|(?![\u200c\u200d])\p{Cf}/u.test(s)) return null;
  return s.replace(/\s+/g, " ").trim();
}

const goodColor = (c) => (typeof c === "string" && /^#([0-9a-f]{3}|[0-9a-f]{6})$/i.test(c) ? c : "#ffcc33");
// Dark words on bright team colours, white on dark ones.
function inkOn(color) {
  let h = color.slice(1);
  if (h.length === 3) h = h.replace(/./g, "$&$&");
  const [r, g, b] = [0, 2, 4].map((i) => parseInt(h.slice(i, i + 2), 16));
  return 0.299 * r + 0.587 * g + 0.114 * b > 140 ? "#0c1c5c" : "#ffffff";
}

// ---- connection ----

// The old socket, perhaps dead after sleep, is silenced and closed.
function dropSocket() {
  clearTimeout(retryTimer);
  clearTimeout(openTimer);
  if (ws) { ws.onopen = ws.onclose = ws.onerror = ws.onmessage = null; try { ws.close(); } catch (e) { /* gone */ } }
  ws = null;
}

function connect() {
  dropSocket();
  let sock;
  try {
    sock = new WebSocket((location.protocol === "https:" ? "wss://" : "ws://") + location.host + "/ws");
  } catch (e) { lost(); return; }
  ws = sock;
  // A connection to a vanished network can hang for long; give up sooner.
  openTimer = setTimeout(() => { if (ws === sock && sock.readyState !== 1) lost(); }, 6000);
  sock.onopen = () => { clearTimeout(openTimer); if (token) send({ type: "hello", token }); };
  sock.onmessage = (e) => {
    try { var m = JSON.parse(e.data); } catch (err) { return; }
    if (m && typeof m === "object") handle(m);
  };
  sock.onerror = () => { try { sock.close(); } catch (e) { /* close follows */ } };
  sock.onclose = () => { if (ws === sock) lost(); };
}

function lost() {
  dropSocket();
  banner(true);
  joinBusy(false);
  retryTimer = setTimeout(connect, DELAYS[Math.min(retry++, DELAYS.length - 1)]);
}

function reconnectNow() { retry = 0; connect(); }

function banner(on) {
  $("banner").hidden = !on;
  document.body.classList.toggle("offline", on);
}

// At most 8 messages a second leave, far below the server's limit.
function send(obj) {
  const now = Date.now();
  while (sentAt.length && now - sentAt[0] > 1000) sentAt.shift();
  if (!ws || ws.readyState !== 1 || sentAt.length >= 8) return false;
  sentAt.push(now);
  ws.send(JSON.stringify(obj));
  return true;
}

// ---- messages from the server ----

function handle(m) {
  switch (m.type) {
    case "welcome":
    case "teams":
      teams = (Array.isArray(m.teams) ? m.teams : []).slice(0, 10)
        .filter((x) => x && Number.isInteger(x.team))
        .map((x) => ({ team: x.team, name: typeof x.name === "string" && x.name ? x.name : t("teamN", x.team + 1), color: goodColor(x.color) }));
      if (me) {
        const mine = teams.find((x) => x.team === me.team);
        if (mine) { me.teamName = mine.name; me.color = mine.color; }
      }
      renderTeams();
      renderHead();
      if (m.type === "welcome") {
        retry = 0;
        if (!token) { banner(false); if (!me) show("join"); }
      }
      break;
    case "joined":
      saveToken(String(m.token || ""));
      if (!me || me.team !== m.team) score = null;
      me = { team: m.team, name: String(m.name || ""), teamName: String(m.teamName || ""), color: goodColor(m.color) };
      retry = 0;
      banner(false);
      joinBusy(false);
      $("notice").hidden = true;
      show("game");
      renderHead();
      render();
      break;
    case "error":
      joinBusy(false);
      if (m.code === "token") { // an old token: start afresh, quietly
        saveToken("");
        me = null;
        banner(false);
        $("joinError").textContent = "";
        show("join");
      } else {
        const text = TEXTS.en["err_" + m.code] ? t("err_" + m.code) : t("err_other");
        $(me ? "status" : "joinError").textContent = text;
      }
      break;
    case "state":
      applyState(m);
      break;
    case "removed":
      saveToken("");
      me = null;
      $("notice").textContent = t("removed");
      $("notice").hidden = false;
      show("join");
      break;
  }
}

function applyState(m) {
  const prev = phase;
  phase = typeof m.phase === "string" ? m.phase : "idle";
  st = m;
  if (typeof m.teamScore === "number") score = m.teamScore;
  if (phase !== prev) {
    if (phase === "first" && navigator.vibrate) navigator.vibrate(200);
    // Fill the forms once, on entering the phase, never over the player's typing.
    $("wagerInput").value = typeof m.wager === "number" ? String(m.wager) : "";
    $("responseInput").value = typeof m.response === "string" ? m.response : "";
    $("panelError").textContent = "";
  }
  deadline = phase === "finalResponse" && typeof m.secondsLeft === "number" ? Date.now() + m.secondsLeft * 1000 : 0;
  clearInterval(tickTimer);
  if (deadline) tickTimer = setInterval(renderCountdown, 250);
  renderHead();
  render();
}

// ---- drawing ----

function show(view) {
  $("loading").hidden = view !== "loading";
  $("join").hidden = view !== "join";
  $("game").hidden = view !== "game";
}

function renderTeams() {
  if (!teams.some((x) => x.team === chosenTeam)) chosenTeam = -1;
  const box = $("teams");
  box.textContent = "";
  for (const x of teams) {
    const b = document.createElement("button");
    b.type = "button";
    b.className = "team-button";
    b.setAttribute("role", "radio");
    b.setAttribute("aria-checked", String(x.team === chosenTeam));
    b.style.background = x.color;
    b.style.color = inkOn(x.color);
    b.textContent = x.name;
    b.addEventListener("click", () => { chosenTeam = x.team; renderTeams(); });
    box.appendChild(b);
  }
}

function renderHead() {
  if (!me) return;
  $("teamName").textContent = me.teamName;
  $("teamName").style.color = me.color;
  document.documentElement.style.setProperty("--team", me.color);
  $("playerName").textContent = me.name;
  $("score").textContent = score === null ? "" : t("score", money(score));
}

function shown(id, text) {
  $(id).hidden = text === null;
  $(id).textContent = text === null ? "" : text;
}

function render() {
  const buzzy = !BUZZ_PHASES.includes(phase) ? "idle" : phase;
  const inPanel = ["wager", "finalWager", "finalResponse", "finalLocked"].includes(phase);
  $("buzz").hidden = inPanel;
  $("panel").hidden = !inPanel;
  $("status").textContent = TEXTS.en["hint_" + phase] ? t("hint_" + phase) : "";
  if (!inPanel) {
    $("buzz").className = "buzz " + buzzy;
    const answering = typeof st.answering === "string" && st.answering ? st.answering : null;
    $("buzzText").textContent = buzzy !== "other" ? t(buzzy) : answering ? t("other", answering) : t("otherTeam");
    return;
  }
  const w = typeof st.wager === "number" ? st.wager : null;
  const r = typeof st.response === "string" ? st.response : null;
  const max = typeof st.max === "number" ? Math.min(Math.max(0, Math.floor(st.max)), MOST_WAGER) : MOST_WAGER;
  $("panelTitle").textContent = phase === "wager" ? t("dailyDouble") : phase === "finalLocked" ? t("lockedIn") : t("finalRound");
  shown("category", typeof st.category === "string" && st.category ? st.category : null);
  $("wagerForm").hidden = phase !== "wager" && phase !== "finalWager";
  $("wagerHint").textContent = t("wagerRange", money(0), money(max));
  $("wagerInput").max = String(max);
  $("responseForm").hidden = phase !== "finalResponse";
  const locked = phase === "finalLocked";
  shown("accWager", w !== null ? t("yourWager", money(w)) : locked ? t("noWager") : null);
  shown("accResponse", r !== null ? t("acceptedResponse", r) : locked ? t("noResponse") : null);
  renderCountdown();
}

function renderCountdown() {
  if (!deadline || phase !== "finalResponse") { clearInterval(tickTimer); shown("countdown", null); return; }
  const left = Math.max(0, Math.ceil((deadline - Date.now()) / 1000));
  shown("countdown", left > 0 ? t("secondsLeft", left) : t("timeUp"));
  $("countdown").classList.toggle("low", left <= 10);
  if (!left) clearInterval(tickTimer);
}

// ---- the player's actions ----

function buzz() {
  const now = performance.now();
  if (now - lastBuzz < 150) return; // a bounce or a second finger
  lastBuzz = now;
  const b = $("buzz");
  b.classList.add("pressed");
  setTimeout(() => b.classList.remove("pressed"), 120);
  if (BUZZ_SENDS.includes(phase)) send({ type: "buzz" });
}

function joinBusy(on) {
  clearTimeout(joinTimer);
  $("joinButton").disabled = on;
  $("joinButton").textContent = t(on ? "joining" : "join");
  if (on) joinTimer = setTimeout(() => joinBusy(false), 5000); // no answer: let them try again
}

function submitJoin(e) {
  e.preventDefault();
  const err = $("joinError");
  const room = $("room").value.replace(/\s+/g, "").toUpperCase();
  const name = cleanText($("name").value);
  if (!room || room.length > 8) err.textContent = t("err_room");
  else if (chosenTeam < 0) err.textContent = t("pickTeam");
  else if (name === null) err.textContent = t("badChars");
  else if (!name || name.length > 20) err.textContent = t("err_name");
  else if (!send({ type: "join", room, team: chosenTeam, name })) err.textContent = t("notConnected");
  else { err.textContent = ""; $("room").value = room; joinBusy(true); }
}

function submitWager(e) {
  e.preventDefault();
  const v = $("wagerInput").value.trim();
  const n = Number(v);
  const max = Number($("wagerInput").max);
  if (v === "" || !Number.isInteger(n) || n < 0 || n > max) {
    $("panelError").textContent = t("badWager", money(0), money(max));
  } else sent(send({ type: "wager", amount: n }));
}

function submitResponse(e) {
  e.preventDefault();
  const text = cleanText($("responseInput").value);
  if (text === null) $("panelError").textContent = t("badChars");
  else if (!text) $("panelError").textContent = t("emptyResponse");
  else sent(send({ type: "response", text: text.slice(0, 200) }));
}

function sent(ok) {
  $("panelError").textContent = ok ? "" : t("notConnected");
  if (!ok) return;
  $("status").textContent = t("sent");
  if (document.activeElement) document.activeElement.blur(); // drop the keyboard so the answer shows
}

// ---- start ----

document.documentElement.lang = LANG;
document.title = t("title");
for (const el of document.querySelectorAll("[data-t]")) el.textContent = t(el.dataset.t);
show("loading");

const buzzButton = $("buzz");
// pointerdown, not click: the buzz leaves as the finger lands.
buzzButton.addEventListener("pointerdown", (e) => { if (e.button > 0) return; e.preventDefault(); buzz(); });
buzzButton.addEventListener("keydown", (e) => {
  if ((e.key === " " || e.key === "Enter") && !e.repeat) { e.preventDefault(); buzz(); }
});
buzzButton.addEventListener("contextmenu", (e) => e.preventDefault());
$("join").addEventListener("submit", submitJoin);
$("wagerForm").addEventListener("submit", submitWager);
$("responseForm").addEventListener("submit", submitResponse);
// The response is one line: Enter sends it.
$("responseInput").addEventListener("keydown", (e) => {
  if (e.key === "Enter" && !e.isComposing) { submitResponse(e); }
});

// A phone that slept may hold a socket that only looks open: start afresh.
document.addEventListener("visibilitychange", () => {
  if (document.hidden) { hiddenAt = Date.now(); return; }
  if (!ws || ws.readyState !== 1 || Date.now() - hiddenAt > 3000) reconnectNow();
});
window.addEventListener("online", reconnectNow);
window.addEventListener("pageshow", (e) => { if (e.persisted) reconnectNow(); });

connect();
