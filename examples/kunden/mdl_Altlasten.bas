Attribute VB_Name = "mdl_Altlasten"
Option Compare Database
DefInt K-N
DefStr S

' ------------------------------------------------------------------
' Übernommen aus der Fassung von 1998. Wird von Makros und alten
' Formularen noch gebraucht. Nicht anfassen, solange es läuft!
' ------------------------------------------------------------------

Global g_sBenutzer As String, g_iRechte
Global Const VERSION_ALT = "2.1"

Const STEUER_ALT# = 16
Const EURO_KURS As Double = 1.95583
Const WÄHRUNG = "DM"

Type AltKunde
    lNummer As Long
    sName As String * 30
    sOrt As String * 30
End Type

Enum AltRecht
    arLesen
    arSchreiben
    arVerwalten
End Enum

Dim mAltKunde As AltKunde
Dim mLetzteNr&, mListe()
Dim mFertig

#If VBA7 Then
Declare PtrSafe Function GetSystemMetrics Lib "user32" (ByVal nIndex As Long) As Long
Declare PtrSafe Function WritePrivateProfileStringA Lib "kernel32" (ByVal sAbschnitt As String, ByVal lpKey As Any, ByVal lpString As Any, ByVal sIni As String) As Long
#Else
Declare Function GetSystemMetrics Lib "user32" (ByVal nIndex As Long) As Long
Declare Function WritePrivateProfileStringA Lib "kernel32" (ByVal sAbschnitt As String, ByVal lpKey As Any, ByVal lpString As Any, ByVal sIni As String) As Long
#End If

Function DMinEuro(Betrag)
    DMinEuro = Int(Betrag / EURO_KURS * 100 + 0.5) / 100
End Function

Function BetragInWorten$(dblBetrag#)
    Dim sZahl, sWort$
    sZahl = Format(dblBetrag, "0.00")
    Do While Len(sZahl) > 0
        sWort = sWort + ZifferWort(Left(sZahl, 1)) + "-"
        sZahl = Mid(sZahl, 2)
    Loop
    BetragInWorten$ = Left$(sWort, Len(sWort) - 1)
End Function

Private Function ZifferWort(sZiffer$) As String
    Select Case sZiffer
        Case "0" To "9"
            ZifferWort = Choose(Val(sZiffer) + 1, "null", "eins", "zwei", "drei", "vier", _
                "fünf", "sechs", "sieben", "acht", "neun")
        Case ",", ".": ZifferWort = "Komma"
    End Select
End Function

Sub SatzSpeichern()
    DoCmd.DoMenuItem acFormBar, acRecordsMenu, acSaveRecord, , acMenuVer70
    Let mFertig = True
End Sub

Sub SatzRückgängig()
    SendKeys "{ESC}{ESC}", True
End Sub

Sub ListeSortieren(sListe() As String, nAnzahl)
    Dim i, j, sTausch
    i = 1
Nochmal:
    For j = 1 To nAnzahl - i
        If sListe(j) > sListe(j + 1) Then
            sTausch = sListe(j): sListe(j) = sListe(j + 1): sListe(j + 1) = sTausch
        End If
    Next j
    i = i + 1
    If i < nAnzahl Then GoTo Nochmal
End Sub

Function KundeLesen(lNr As Long) As Boolean
    On Error GoTo KeinKunde
    Dim dbs As Database, rst As Recordset
    Set dbs = CurrentDb()
    Set rst = dbs.OpenRecordset("SELECT * FROM tblKunden WHERE KundenNr = " & lNr)
    mAltKunde.lNummer = rst!KundenNr
    mAltKunde.sName = Nz(rst!Nachname, "")
    mAltKunde.sOrt = Nz(rst!Ort, "")
    mLetzteNr = lNr
    KundeLesen = True
    rst.Close
    Exit Function
KeinKunde:
    KundeLesen = False
End Function

Function LetzterKunde() As Long
    LetzterKunde = mLetzteNr
End Function

Function Breitbild() As Boolean
    Const SM_BREITE = 0, SM_HÖHE% = 1
    Breitbild = GetSystemMetrics(SM_BREITE) / GetSystemMetrics(SM_HÖHE) > 1.5
End Function

Sub IniSchreiben(sWert, Optional sEintrag As String = "Drucker")
    Rem WritePrivateProfileStringA "Kunden", sEintrag, sWert, "kunden.ini"
End Sub

Sub RechtePrüfen(nRecht As Integer)
    If g_iRechte < nRecht Then MsgBox "Keine Berechtigung": End
End Sub
