Attribute VB_Name = "mdl_Datum"
Option Compare Database
Option Explicit

' Arbeitstage, Feiertage, Fälligkeiten

Private Const TAGE_JE_WOCHE As Integer = 7
Private Const ERSTES_JAHR As Long = 1900

Private mlngJahr As Long
Private mcolFeiertage As Collection

Public Function Ostersonntag(ByVal lngJahr As Long) As Date
    Dim a As Long, b As Long, c As Long
    Dim lngTag As Long
    Dim lngMonat As Long

    On Error GoTo Fehler

    a = lngJahr Mod 19
    b = (19 * a + 24) Mod 30
    c = (2 * (lngJahr Mod 4) + 4 * (lngJahr Mod 7) + 6 * b + 5) Mod 7
    lngTag = 22 + b + c
    lngMonat = 3
    If lngTag > 31 Then
        lngTag = lngTag - 31
        lngMonat = 4
        If lngTag = 26 Then lngTag = 19
        If lngTag = 25 And b = 28 And a > 10 Then lngTag = 18
    End If
    Ostersonntag = DateSerial(lngJahr, lngMonat, lngTag)

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Datum", "Ostersonntag", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function IstFeiertag(ByVal datTag As Date) As Boolean
    Dim strTag As String

    On Error GoTo Fehler

    If Year(datTag) <> mlngJahr Then FeiertageFüllen Year(datTag)
    strTag = mcolFeiertage.Item(Format$(datTag, "yyyymmdd"))
    IstFeiertag = Len(strTag) > 0

Ausgang:
    Exit Function
Fehler:
    If Err.Number <> 5 Then FehlerMelden "mdl_Datum", "IstFeiertag", Err.Number, Err.Description
    IstFeiertag = False
    Resume Ausgang
End Function

Private Sub FeiertageFüllen(ByVal lngJahr As Long)
    Dim datOstern As Date

    On Error GoTo Fehler

    Set mcolFeiertage = New Collection
    datOstern = Ostersonntag(lngJahr)

    FeiertagMerken DateSerial(lngJahr, 1, 1), "Neujahr"
    FeiertagMerken DateSerial(lngJahr, 1, 6), "Heilige Drei Könige"
    FeiertagMerken datOstern - 2, "Karfreitag"
    FeiertagMerken datOstern + 1, "Ostermontag"
    FeiertagMerken DateSerial(lngJahr, 5, 1), "Tag der Arbeit"
    FeiertagMerken datOstern + 39, "Christi Himmelfahrt"
    FeiertagMerken datOstern + 50, "Pfingstmontag"
    FeiertagMerken datOstern + 60, "Fronleichnam"
    FeiertagMerken DateSerial(lngJahr, 10, 3), "Tag der Deutschen Einheit"
    FeiertagMerken DateSerial(lngJahr, 11, 1), "Allerheiligen"
    FeiertagMerken DateSerial(lngJahr, 12, 25), "1. Weihnachtstag"
    FeiertagMerken DateSerial(lngJahr, 12, 26), "2. Weihnachtstag"
    mlngJahr = lngJahr

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Datum", "FeiertageFüllen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Private Sub FeiertagMerken(ByVal datTag As Date, ByVal strBezeichnung As String)
    On Error Resume Next
    mcolFeiertage.Add strBezeichnung, Format$(datTag, "yyyymmdd")
End Sub

Public Function IstArbeitstag(ByVal datTag As Date) As Boolean
    On Error Resume Next

    Select Case Weekday(datTag, vbMonday)
        Case 6, 7
            IstArbeitstag = False
        Case Else
            IstArbeitstag = Not IstFeiertag(datTag)
    End Select
End Function

Public Function NächsterArbeitstag(ByVal datTag As Date) As Date
    On Error GoTo Fehler

    NächsterArbeitstag = datTag
    Do Until IstArbeitstag(NächsterArbeitstag)
        NächsterArbeitstag = NächsterArbeitstag + 1
    Loop

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Datum", "NächsterArbeitstag", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function Fälligkeit(ByVal datRechnung As Date, Optional ByVal lngTage As Long = ZAHLUNGSZIEL_TAGE) As Date
    On Error Resume Next
    Fälligkeit = NächsterArbeitstag(DateAdd("d", lngTage, datRechnung))
End Function

' Kalenderwoche nach ISO 8601. DatePart liefert für manche Montage 53 statt 1.
Public Function KalenderWoche(ByVal datTag As Date) As Integer
    Dim datDonnerstag As Date
    Const WOCHE_NULL As Integer = 0

    On Error Resume Next
    datDonnerstag = datTag - Weekday(datTag, vbMonday) + 4
    KalenderWoche = (datDonnerstag - DateSerial(Year(datDonnerstag), 1, 1)) \ TAGE_JE_WOCHE + 1
    ' früher: If KalenderWoche = WOCHE_NULL Then KalenderWoche = 53
End Function

Public Function QuartalText(ByVal datTag As Date) As String
    On Error Resume Next
    QuartalText = Format(datTag, "q") & ". Quartal " & Year(datTag)
End Function

' Zeitraum eines Quartals; Anfang und Ende kommen über die Parameter zurück
Public Sub QuartalGrenzen(ByVal lngJahr As Long, ByVal lngQuartal As Long, ByRef datVon As Date, ByRef datBis As Date)
    Dim strHinweis As String

    On Error GoTo Fehler

    If lngJahr < ERSTES_JAHR Then Err.Raise 5, "QuartalGrenzen", "Das Jahr ist zu klein."
    Debug.Assert lngQuartal >= 1 And lngQuartal <= 4
    datVon = DateSerial(lngJahr, (lngQuartal - 1) * 3 + 1, 1)
    datBis = DateSerial(lngJahr, lngQuartal * 3 + 1, 0)

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Datum", "QuartalGrenzen", Err.Number, Err.Description
    Resume Ausgang
End Sub
